#include "Form1.h"

#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FormTexts.h"
#include "Globals.h"
#include "GreyOut.h"
#include "Liste.h"
#include "SharedState.h"
#include "Trainer.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr FormText texts[] = {
    {"Menu_Datei", u"Datei", u"&File"},
    {"Menu_Datei_Neu", u"Neue Vokabeldatenbank...", u"&New Vocab Database..."},
    {"Datei_Open", u"Öffne Vokabeldatenbank ...", u"&Open Vocab Database..."},
    {"Datei_Beispiel", u"Beispiel öffnen...", u"Open E&xample..."},
    {"Datei_Drucken", u"Drucken...", u"&Print..."},
    {"Menu_Datei_Beenden", u"Beenden", u"&Quit"},
    {"Menu_Ansicht", u"Ansicht", u"&View"},
    {"Menu_Ansicht_Auswahl", u"Auswahl", u"&Selection"},
    {"Menu_Auswahl_Liste", u"Liste", u"Vocab &List"},
    {"Menu_Ansicht_Vokabeltrainer", u"Vokabeltrainer", u"&Trainer"},
    {"Sonderzeichen", u"Sonderzeichen", u"Special &Characters"},
    {"Optionen", u"Optionen ...", u"&Options..."},
    {"mnuHelp", u"Hilfe", u"&Help"},
    {"mnuHelpInhalt", u"&Inhalt", u"&Content"},
    {"mnuHelpSuchen", u"Suchen in der Hilfe", u"&Search in Help"},
    {"mnuHelpInfo", u"Info", u"&About Lingomat"},
    {"mnWeb", u"Lingomat im Web", u"Lingomat in the &Web"},
    {"Label1", u"Hilfe: F1", u"Help: F1"},
    {"Command1", u"Auswahl", u"&Selection", nullptr, u"Opens the Selection Window"},
    {"Command2", u"Trainer", u"&Trainer", nullptr, u"Opens the Trainer"},
    {"Command4", u"Beenden", u"&Quit", nullptr, u"Terminates the Application"},
    {"Grid", u"Liste", u"&List", nullptr, u"Opens the Vocab List"},
};

/// Share of the window's width that one language name may take.
constexpr int LanguagePercent = 38;
/// What stays free beside the path, in average characters.
constexpr int PathMargin = 6;

QString fitted(const QLabel& label, const QString& text, int width) {
    const QFontMetrics metrics = label.fontMetrics();
    return FitTextToWidth(text, width,
                          [&metrics](const QString& part) { return metrics.horizontalAdvance(part); });
}

/// A tip with the whole text, whatever characters that holds; none where the label shows it all.
QString tipFor(const QString& whole, const QString& shown) {
    return whole == shown ? QString() : "<span>"_L1 + whole.toHtmlEscaped() + "</span>"_L1;
}

void display(QLabel& label, const QString& whole, int width) {
    const QString text = fitted(label, whole, width);
    label.setText(text);
    label.setToolTip(tipFor(whole, text));
    label.setAccessibleName(whole);
}

} // namespace

void Form1::SetUserInterfaceProperties() {
    setWindowTitle(ProductName());
    applyTexts(*this, texts);
}

void Form1::ConditionToUI(bool refreshProperties) {
    SharedState& state = m_context.state;
    const auto forgetSelection = [this, &state] {
        m_forms.liste.LoescheListe();
        if (m_trainerLoaded) // its entries went with the rows, its keys may mean others in the next file
            m_forms.trainer.Command6_Click();
        state.SelectionValid = false;
    };
    if (!state.databaseIsOpen()) {
        if (state.FormIsLoading)
            return;
        forgetSelection();
    }
    if (state.DBChanged || (state.DBIsEmpty && !state.SelectionValid))
        forgetSelection();

    GreyOut();
    if (state.databaseIsOpen()) {
        // Before it is loaded, the list has nothing to refresh: its load does all that itself.
        if (refreshProperties && m_listeLoaded)
            m_forms.liste.GetProperties();
        if (m_listeLoaded)
            UpdateLanguageFields();
    }
    SetzeAnzeigen();
    state.DBChanged = false;
}

void Form1::GreyOut() {
    const SharedState& state = m_context.state;
    const EnabledCommands enabled =
        enabledCommands({state.databaseIsOpen(), state.DBIsEmpty, state.SelectionValid});
    m_dateiDrucken->setEnabled(enabled.print);
    m_menuAnsicht->setEnabled(enabled.view);
    m_command1->setEnabled(enabled.selection);
    m_menuAnsichtAuswahl->setEnabled(enabled.selection);
    m_grid->setEnabled(enabled.list);
    m_menuAuswahlListe->setEnabled(enabled.list);
    m_command2->setEnabled(enabled.trainer);
    m_menuAnsichtVokabeltrainer->setEnabled(enabled.trainer);
}

void Form1::SetzeAnzeigen() {
    const SharedState& state = m_context.state;
    if (!state.databaseIsOpen()) {
        const QString none = uiText(u"<keine>"_s, u"<none>"_s);
        display(*m_dbAnzeige, uiText(u"Datenbank: "_s, u"Database: "_s) + none, QWIDGETSIZE_MAX);
        display(*m_lang1Label, none, QWIDGETSIZE_MAX);
        display(*m_lang2Label, none, QWIDGETSIZE_MAX);
        display(*m_anzahlLabel, uiText(u"Anzahl Einträge: "_s, u"Number of Entries: "_s) + none,
                QWIDGETSIZE_MAX);
        return;
    }

    const int margin = PathMargin * m_dbAnzeige->fontMetrics().averageCharWidth();
    display(*m_dbAnzeige, uiText(u"Datenbank: "_s, u"Database: "_s) + state.CurrentDBPath,
            m_dbAnzeige->width() - margin);
    const int languageWidth = width() * LanguagePercent / 100;
    display(*m_lang1Label, state.Lang1Name, languageWidth);
    display(*m_lang2Label, state.Lang2Name, languageWidth);
    try {
        const int count = state.DBHandler.RecordsetAuswahl.RecordCount();
        display(*m_anzahlLabel,
                uiText(u"Anzahl Einträge: "_s, u"Number of entries: "_s) + QString::number(count),
                QWIDGETSIZE_MAX);
    } catch (...) {
        // Between two selections there is nothing to count; the last count stands until there is.
    }
}

void Form1::UpdateLanguageFields() {
    m_forms.liste.SetHeaders();
    m_forms.liste.HideColsAccordingToOptions();
}

} // namespace lingomat
