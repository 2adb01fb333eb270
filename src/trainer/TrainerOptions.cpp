#include "Trainer.h"

#include "FlexGrid.h"
#include "Globals.h"
#include "Prompts.h"
#include "SharedState.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>

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
        m_panels[PanelPosition]->clear();

    m_sequential->setChecked(Reihenfolge_sequentiell);
    m_shuffled->setChecked(Reihenfolge_shuffle);
    m_random->setChecked(Reihenfolge_random);
    m_language1First->setChecked(Lang1Zuerst);
    m_language2First->setChecked(Lang2Zuerst);

    const SharedState& state = m_context.state;
    m_language1First->setText(state.Lang1Name + uiText(u" zuerst"_s, u" first"_s));
    m_language2First->setText(state.Lang2Name + uiText(u" zuerst"_s, u" first"_s));
    m_grid->setTextMatrix(TopLanguageRow, 0, Lang1Zuerst ? state.Lang1Name : state.Lang2Name);
    m_grid->setTextMatrix(OtherLanguageRow, 0, Lang1Zuerst ? state.Lang2Name : state.Lang1Name);
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
    OptionsToUI();
}

void Trainer::chooseLanguage(bool Trainer::*language) {
    if (this->*language)
        return;
    Lang1Zuerst = false;
    Lang2Zuerst = false;
    this->*language = true;
    InvertVokabelnGrid();
    OptionsToUI();
}

void Trainer::InvertVokabelnGrid() {
    const QString question = m_grid->TextMatrix(QuestionRow, 0);
    setExpression(QuestionRow, m_grid->TextMatrix(SolutionRow, 0));
    setExpression(SolutionRow, question);
}

} // namespace lingomat
