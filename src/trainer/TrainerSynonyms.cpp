// Stepping through the synonyms of the entry on the screen.

#include "Trainer.h"

#include "EntryRecords.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "SharedState.h"
#include "SynonymButtons.h"

#include <QPushButton>

namespace lingomat {

void Trainer::connectSynonyms(const SynonymButtons& buttons, GridRow row) {
    connect(&buttons, &SynonymButtons::next, this,
            [this, row] { ZeigeSynonym(SynonymStep::Next, languageOfRow(row)); });
    connect(&buttons, &SynonymButtons::previous, this,
            [this, row] { ZeigeSynonym(SynonymStep::Previous, languageOfRow(row)); });
}

int Trainer::languageOfRow(GridRow row) const {
    return (row == QuestionRow) == Lang1Zuerst ? 1 : 2;
}

void Trainer::SetzeSynonymFilter(int language) {
    SynonymFilter[languageIndex(language)] = synonymCriterion(m_shown.key, language);
}

void Trainer::ZeigeSynonym(SynonymStep step, int language) {
    if (m_shown.key.isEmpty()) // nothing is on the screen
        return;
    const bool done = trapped(m_context.prompts, [this, step, language] {
        const GridRow row = (language == 1) == Lang1Zuerst ? QuestionRow : SolutionRow;
        const dao::Recordset& synonyms = m_context.state.DBHandler.RecordsetSynonyme;
        if (findSynonym(step, language)) {
            m_synonymPlaces[languageIndex(language)] = synonyms.Bookmark();
            setExpression(row, generiereAusdruck(synonymParts(synonyms)));
            return;
        }
        setExpression(row, m_shown.expressions[languageIndex(language)]);
        endSynonyms(language);
    });
    if (!done) // its place is lost: the next press starts again
        endSynonyms(language);
}

bool Trainer::findSynonym(SynonymStep step, int language) {
    dao::Recordset& synonyms = m_context.state.DBHandler.RecordsetSynonyme;
    const bool isNext = step == SynonymStep::Next;
    const QString& criterion = SynonymFilter[languageIndex(language)];
    const auto& place = m_synonymPlaces[languageIndex(language)];
    if (criterion.isEmpty() || !place) {
        SetzeSynonymFilter(language);
        isNext ? synonyms.FindFirst(criterion) : synonyms.FindLast(criterion);
    } else {
        synonyms.setBookmark(*place);
        isNext ? synonyms.FindNext(criterion) : synonyms.FindPrevious(criterion);
    }
    return isFound(synonyms);
}

void Trainer::endSynonyms() {
    endSynonyms(1);
    endSynonyms(2);
}

void Trainer::endSynonyms(int language) {
    SynonymFilter[languageIndex(language)].clear();
    m_synonymPlaces[languageIndex(language)].reset();
}

void Trainer::showSynonymButtons(bool visible) {
    if (!visible &&
        (m_questionSynonyms->isAncestorOf(focusWidget()) || m_solutionSynonyms->isAncestorOf(focusWidget())))
        m_step.button->setFocus();
    m_questionSynonyms->setVisible(visible);
    m_solutionSynonyms->setVisible(visible);
}

} // namespace lingomat
