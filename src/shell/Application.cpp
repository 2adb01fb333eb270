#include "Application.h"

#include "ErrorTrap.h"
#include "Relationen.h"
#include "WindowPlacement.h"
#include "frmVokabelEingabe.h"

#include <QApplication>

namespace lingomat {

Application::Application(const Environment& environment)
    : m_splash(environment.language),
      m_state([&prompts = environment.prompts](const QString& description) {
          reportError(prompts, description);
      }),
      m_settings(environment.settingsFolder ? SettingsStore(*environment.settingsFolder) : SettingsStore()),
      m_values(environment.prompts),
      m_context{m_state,   environment.prompts, m_settings,         m_values,
                m_columns, m_progress,          environment.random, environment.today},
      m_help(environment.prompts, environment.programFolder),
      m_liste(m_context),
      m_trainer(m_context, m_liste),
      m_options(m_context, m_trainer, m_liste),
      m_form2(m_context, m_liste, m_trainer),
      m_form1(
          m_context, {m_splash, m_liste, m_trainer, m_form2, m_help},
          {environment.programFolder, environment.workArea, environment.choosePrinter, environment.desktop}) {
    connectForms();
}

void Application::connectForms() {
    // Loading.
    QObject::connect(&m_splash, &frmSplash::mainWindowRequested, &m_form1, &Form1::start);
    QObject::connect(&m_liste, &Liste::loadProgress, &m_splash, &frmSplash::setBar);
    QObject::connect(&m_trainer, &Trainer::loadProgress, &m_splash, &frmSplash::setBar);

    // Working.
    QObject::connect(&m_form2, &Form2::selectionMade, &m_form1, &Form1::GreyOut);
    QObject::connect(&m_liste, &Liste::stateChanged, &m_form1, [this] { m_form1.ConditionToUI(false); });
    QObject::connect(&m_liste, &Liste::rowsChanged, &m_trainer, &Trainer::Command6_Click);
    QObject::connect(&m_liste, &Liste::referencesRequested, &m_liste, [this] { showReferences(); });
    QObject::connect(&m_liste, &Liste::expressionEditorRequested, &m_liste,
                     [this](const ExpressionParts& parts, const QString& typed, const QRect& cell) {
                         editExpression(parts, typed, cell);
                     });
    QObject::connect(&m_liste, &Liste::valueEntered, &m_form2, &Form2::NeuerAuswahlwert);
    QObject::connect(&m_liste, &Liste::printRequested, &m_form1, &Form1::Datei_Drucken_Click);
    QObject::connect(&m_form1, &Form1::specialCharactersRequested, &m_fontHelp, &FontHelp::showFor);
    QObject::connect(&m_liste, &Liste::specialCharactersRequested, &m_fontHelp, &FontHelp::showFor);
    QObject::connect(&m_trainer, &Trainer::specialCharactersRequested, &m_fontHelp, &FontHelp::showFor);
    QObject::connect(&m_form2, &Form2::specialCharactersRequested, &m_fontHelp, &FontHelp::showFor);

    const auto showTab = [this](int tab) { showOptions(tab); };
    QObject::connect(&m_form1, &Form1::optionsRequested, &m_options, showTab);
    QObject::connect(&m_trainer, &Trainer::optionsRequested, &m_options, showTab);
    QObject::connect(&m_liste, &Liste::optionsRequested, &m_options, showTab);
    QObject::connect(&m_form1, &Form1::exitRequested, &m_help, &Help::close);

    // The end. Not QCoreApplication::quit, which would close the windows once more.
    QObject::connect(&m_form1, &Form1::exitRequested, qApp, [] { QCoreApplication::exit(); });
}

void Application::showReferences() {
    lingomat::showReferences(m_context, m_liste, &m_liste);
}

void Application::showOptions(int tab) {
    m_options.setTab(tab);
    if (const QWidget* asker = QApplication::activeWindow())
        keepInFrontOf(m_options, *asker);
    m_context.prompts.exec(m_options);
}

void Application::editExpression(const ExpressionParts& parts, const QString& typed, const QRect& cell) {
    frmVokabelEingabe editor(m_context, m_fontHelp,
                             {m_liste.MSFlexGrid1(), [this] { m_liste.Command2_Click(); },
                              [this](const ExpressionParts& entered) { m_liste.AusdruckDialogOK(entered); }},
                             &m_liste);
    editor.edit(parts, typed, cell);
}

void Application::start() {
    // Windows come and go while the program loads; it ends by its own command only.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    m_splash.show();
}

} // namespace lingomat
