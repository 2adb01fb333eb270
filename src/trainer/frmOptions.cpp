#include "frmOptions.h"

#include "ColumnOptions.h"
#include "ErrorTrap.h"
#include "ExceptionSettings.h"
#include "FormContext.h"
#include "Globals.h"
#include "Liste.h"
#include "Prompts.h"
#include "SharedState.h"
#include "Trainer.h"
#include "WindowPlacement.h"

#include <QCheckBox>
#include <QScopedValueRollback>
#include <QShowEvent>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// In the order of the controls.
constexpr bool Trainer::*members[] = {
    &Trainer::Reihenfolge_sequentiell,
    &Trainer::Reihenfolge_shuffle,
    &Trainer::Reihenfolge_random,
    &Trainer::Lang1Zuerst,
    &Trainer::Lang2Zuerst,
    &Trainer::Selbsttest,
    &Trainer::Schleife,
    &Trainer::Schreiben,
    &Trainer::FehlerBestaetigen,
    &Trainer::MainOnly,
};

} // namespace

frmOptions::frmOptions(FormContext& context, Trainer& trainer, Liste& liste, QWidget* parent)
    : QDialog(parent), m_context(context), m_trainer(trainer), m_liste(liste) {
    setObjectName(u"frmOptions"_s);
    buildWidgets();
    connectOptions();
    SetUserInterfaceProperties();
    takeFirstSize();
}

frmOptions::~frmOptions() = default;

void frmOptions::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    Form_Activate();
    centre();
    m_tabs->setFocus();
}

/// Once for each time that it opens. A message box over it, when it closes, brings nothing back that the
/// user has changed since.
void frmOptions::Form_Activate() {
    nameLanguages();
    attempt([this] { GetOptions(); });
    attempt([this] { SetListColVisibility(); });
    attempt([this] { PrepareExceptionsOptions(); });
}

void frmOptions::centre() {
    const QRect screen = usableScreen(*this);
    QRect frame = frameGeometry();
    frame.moveCenter(screen.center());
    move(keptInside(frame, screen));
}

void frmOptions::setTab(int number) {
    if (number >= 1 && number <= TabCount)
        m_tabs->setCurrentIndex(number - 1);
}

void frmOptions::selectNextTab(int step) {
    m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + TabCount) % TabCount);
}

void frmOptions::GetOptions() {
    const QScopedValueRollback setting(m_isSetting, true);
    for (size_t option = 0; option < m_options.size(); ++option)
        m_options[option]->setChecked(m_trainer.*members[option]);
    showChoices(choices());
}

void frmOptions::SetOptions() {
    for (size_t option = 0; option < m_options.size(); ++option)
        m_trainer.*members[option] = m_options[option]->isChecked();
    for (size_t column = 0; column < m_columns.size(); ++column)
        m_context.columns.setShown(static_cast<ListColumn>(column), m_columns[column]->isChecked());
    attempt([this] { m_liste.HideColsAccordingToOptions(); });
    SaveColsSettings();
}

void frmOptions::cmdApply_Click() {
    SetExceptions();
    attempt([this] { readExceptions(m_context.state.Exceptions, m_context.settings); });
    SetOptions();
    attempt([this] { m_trainer.OptionsToUI(); });
    m_trainer.Command6_Click();
}

void frmOptions::cmdOK_Click() {
    cmdApply_Click();
    accept();
}

void frmOptions::cmdCancel_Click() {
    reject();
}

void frmOptions::attempt(const std::function<void()>& step) {
    trapped(m_context.prompts, step);
}

// Exclusions.

OptionChoices frmOptions::choices() const {
    const auto isSet = [this](Option option) { return m_options[option]->isChecked(); };
    return {.random = isSet(Random),
            .selfTest = isSet(SelfTest),
            .loop = isSet(Loop),
            .write = isSet(Write),
            .confirmError = isSet(ConfirmError),
            .mainOnly = isSet(MainOnly)};
}

void frmOptions::showChoices(const OptionChoices& choices) {
    const QScopedValueRollback setting(m_isSetting, true);
    const EnabledOptions enabled = enabledOptions(choices);
    const auto set = [this](Option option, bool isSet, bool isEnabled) {
        m_options[option]->setChecked(isSet);
        m_options[option]->setEnabled(isEnabled);
    };
    set(Loop, choices.loop, enabled.loop);
    set(Write, choices.write, enabled.write);
    set(ConfirmError, choices.confirmError, enabled.confirmError);
    set(MainOnly, choices.mainOnly, enabled.mainOnly);
}

void frmOptions::settle(ChangedOption changed) {
    if (m_isSetting)
        return;
    const SettledOptions result = settled(choices(), changed);
    say(result.note);
    showChoices(result.choices);
}

void frmOptions::say(LoopNote note) {
    if (note == LoopNote::Ended)
        m_context.prompts.information(
            this, uiText(u"Die Option 'Schleife' wird zur Aktivierung von 'random' zurückgesetzt."_s,
                         u"The option 'Loop'is being deactivated in order to set option 'Random'."_s));
    if (note == LoopNote::Refused)
        m_context.prompts.information(
            this, uiText(u"Diese Option kann nicht gewählt werden, da als Wortreihenfolge 'random' "
                         u"eingestellt ist."_s,
                         u"This option can not be chosen, because the option 'Random' is set."_s));
}

} // namespace lingomat
