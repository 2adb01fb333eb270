#include "Trainer.h"

#include "FlexGrid.h"
#include "Globals.h"
#include "Prompts.h"
#include "SharedState.h"
#include "TrainerPanels.h"
#include "TrainerReferences.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

void Trainer::Command::setEnabled(bool enabled) const {
    button->setEnabled(enabled);
    entry->setEnabled(enabled);
}

void Trainer::RowPositionToUI() {
    const bool canGoBack = Position > 1;
    if (canGoBack && (Selbsttest || Reihenfolge_random))
        return;
    m_back.setEnabled(canGoBack);
    m_first.setEnabled(canGoBack);
}

void Trainer::OptionsToUI() {
    const bool isOrdered = !Reihenfolge_random;
    for (const Command& command : {m_back, m_first, m_last})
        command.setEnabled(!Selbsttest && isOrdered);
    m_forward.setEnabled(!Selbsttest);
    if (Reihenfolge_random)
        m_statusPanels[PanelPosition]->clear();

    using Toolbar = TrainerToolbar;
    m_toolbar->setButtonEnabled(Toolbar::Loop, Selbsttest && isOrdered);
    m_toolbar->setButtonEnabled(Toolbar::Write, Selbsttest);
    m_toolbar->setButtonEnabled(Toolbar::ConfirmError, Selbsttest && Schreiben);
    m_toolbar->setButtonEnabled(Toolbar::MainOnly, Selbsttest && Schreiben);
    const std::pair<Toolbar::Button, bool> options[]{
        {Toolbar::Sequential, Reihenfolge_sequentiell},
        {Toolbar::Shuffle, Reihenfolge_shuffle},
        {Toolbar::Random, Reihenfolge_random},
        {Toolbar::Language1First, Lang1Zuerst},
        {Toolbar::Language2First, Lang2Zuerst},
        {Toolbar::SelfTest, Selbsttest},
        {Toolbar::Loop, Schleife},
        {Toolbar::Write, Schreiben},
        {Toolbar::ConfirmError, FehlerBestaetigen},
        {Toolbar::MainOnly, MainOnly},
    };
    for (const auto& [button, isSet] : options)
        m_toolbar->setPressed(button, isSet);

    const SharedState& state = m_context.state;
    m_toolbar->setTips(state.Lang1Name, state.Lang2Name);
    m_grid->setTextMatrix(TopLanguageRow, 0, Lang1Zuerst ? state.Lang1Name : state.Lang2Name);
    m_grid->setTextMatrix(OtherLanguageRow, 0, Lang1Zuerst ? state.Lang2Name : state.Lang1Name);
}

void Trainer::Toolbar1_ButtonClick(TrainerToolbar::Button button, bool pressed) {
    switch (button) {
    case TrainerToolbar::Sequential: chooseOrder(&Trainer::Reihenfolge_sequentiell); break;
    case TrainerToolbar::Shuffle: chooseOrder(&Trainer::Reihenfolge_shuffle); break;
    case TrainerToolbar::Random: chooseOrder(&Trainer::Reihenfolge_random); break;
    case TrainerToolbar::Language1First: chooseLanguage(&Trainer::Lang1Zuerst); break;
    case TrainerToolbar::Language2First: chooseLanguage(&Trainer::Lang2Zuerst); break;
    case TrainerToolbar::SelfTest: chooseSelfTest(pressed); break;
    case TrainerToolbar::Loop:
        Schleife = pressed;
        Command6_Click();
        break;
    case TrainerToolbar::Write: chooseWriting(pressed); break;
    case TrainerToolbar::ConfirmError: FehlerBestaetigen = pressed; break;
    case TrainerToolbar::MainOnly: MainOnly = pressed; break;
    }
    OptionsToUI();
}

void Trainer::chooseOrder(bool Trainer::*order) {
    if (order == &Trainer::Reihenfolge_random && Schleife) {
        m_context.prompts.information(
            this, uiText(u"Die Option 'Schleife' wird zur Aktivierung von 'random' zurückgesetzt."_s,
                         u"The option 'Loop'is being deactivated in order to set option 'Random'."_s));
        Schleife = false;
    }
    Reihenfolge_sequentiell = false;
    Reihenfolge_shuffle = false;
    Reihenfolge_random = false;
    this->*order = true;
    // From shuffled back to the list's order the walk goes on where it stands, by number.
    if (!Reihenfolge_sequentiell || Schleife)
        Command6_Click();
}

void Trainer::chooseLanguage(bool Trainer::*language) {
    if (this->*language)
        return;
    Lang1Zuerst = false;
    Lang2Zuerst = false;
    this->*language = true;
    InvertVokabelnGrid();
    m_panels->references().setLanguage1First(Lang1Zuerst);
    m_panels->references().InvertRelationGrid();
}

/// Ending it begins a new session while the loop is still on, and takes what depends on it away after that.
void Trainer::chooseSelfTest(bool on) {
    Selbsttest = on;
    if (Schleife)
        Command6_Click();
    if (on)
        return;
    Schleife = false;
    chooseWriting(false);
}

void Trainer::chooseWriting(bool on) {
    Schreiben = on;
    if (on)
        return;
    FehlerBestaetigen = false;
    MainOnly = false;
}

void Trainer::InvertVokabelnGrid() {
    const QString question = m_grid->TextMatrix(QuestionRow, 0);
    setExpression(QuestionRow, m_grid->TextMatrix(SolutionRow, 0));
    setExpression(SolutionRow, question);
    clearVerdict();
}

} // namespace lingomat
