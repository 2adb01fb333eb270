#include "Form1.h"

#include "CConverter.h"
#include "ErrorTrap.h"
#include "Form2.h"
#include "Liste.h"
#include "SharedState.h"
#include "ShellMessages.h"
#include "SprachenEingabe.h"
#include "Trainer.h"
#include "frmSplash.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QScopedValueRollback>

namespace lingomat {

namespace {

constexpr int OffScreen = -10000;

} // namespace

Form1::Form1(FormContext& context, WorkingForms forms, Surroundings surroundings, QWidget* parent)
    : QMainWindow(parent), m_context(context), m_forms(forms), m_surroundings(std::move(surroundings)) {
    buildWidgets();
    buildMenus();
    m_sprachenEingabe = new SprachenEingabe(context.prompts, this);
    connectCommands();
    m_dbAnzeige->installEventFilter(this);
}

Form1::~Form1() = default;

void Form1::start() {
    Form_Load();
    show();
    // Not every display makes a new window the active one.
    Form_Activate();
}

void Form1::Form_Activate() {
    if (m_commandRunning || m_ended)
        return;
    trapped(m_context.prompts, [this] { ConditionToUI(false); });
}

bool Form1::event(QEvent* event) {
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate && !m_context.state.FormIsLoading)
        Form_Activate();
    return handled;
}

bool Form1::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QMainWindow::eventFilter(watched, event);
    const bool widthChanged = event->type() == QEvent::Resize || event->type() == QEvent::FontChange;
    if (watched == m_dbAnzeige && widthChanged && !m_context.state.FormIsLoading && !m_ended)
        trapped(m_context.prompts, [this] { SetzeAnzeigen(); });
    return handled;
}

void Form1::closeEvent(QCloseEvent* event) {
    // The frame's button is one more way to the command; the window goes when the program does.
    event->ignore();
    Command4_Click();
}

QWidget* Form1::boxParent() {
    if (isVisible())
        return this;
    return m_forms.splash.isVisible() ? &m_forms.splash : nullptr;
}

void Form1::openForm(QWidget& form) {
    ensureFormsLoaded();
    form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
    form.show();
    form.raise();
    form.activateWindow();
}

void Form1::showListe() {
    openForm(m_forms.liste);
}

void Form1::Command1_Click() {
    trapped(m_context.prompts, [this] { openForm(m_forms.form2); });
}

void Form1::Grid_Click() {
    trapped(m_context.prompts, [this] { openForm(m_forms.liste); });
}

void Form1::Command2_Click() {
    trapped(m_context.prompts, [this] { openForm(m_forms.trainer); });
}

void Form1::Sonderzeichen_Click() {
    Q_EMIT specialCharactersRequested(*this);
}

void Form1::Optionen_Click() {
    trapped(m_context.prompts, [this] {
        ensureFormsLoaded(); // the options act on list and Trainer
        Q_EMIT optionsRequested(0);
    });
}

void Form1::Command4_Click() {
    if (m_commandRunning || m_ended)
        return;
    const QScopedValueRollback running(m_commandRunning, true);
    trapped(m_context.prompts, [this] { endProgram(); });
}

void Form1::endProgram() {
    SharedState& state = m_context.state;
    if (m_forms.liste.pendingChanges() > 0) {
        if (ShowMessage(quitQuestion()) != QMessageBox::Yes) {
            showListe();
            return;
        }
        m_forms.liste.forgetChanges();
    }

    if (state.databaseIsOpen()) {
        trapped(m_context.prompts, [&state] { state.DBHandler.BereinigeDB(); });
        trapped(m_context.prompts, [&state] { state.DBHandler.CloseAllDBObjects(); });
    }

    m_ended = true;
    for (QWidget* form : {static_cast<QWidget*>(&m_forms.liste), static_cast<QWidget*>(&m_forms.trainer),
                          static_cast<QWidget*>(this), static_cast<QWidget*>(&m_forms.form2),
                          static_cast<QWidget*>(&m_forms.splash)})
        form->hide();
    Q_EMIT exitRequested();
}

QMessageBox::StandardButton Form1::ShowMessage(const Message& message) {
    const QPoint place = pos();
    move(OffScreen, place.y());
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    // Without a parent: a box is placed over the window it belongs to.
    const QMessageBox::StandardButton answer = m_context.prompts.message(nullptr, message);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    move(place);
    return answer;
}

} // namespace lingomat
