// Judging a typed answer.

#include "Trainer.h"

#include "AnswerRules.h"
#include "ConfirmForm.h"
#include "EntryRecords.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "InputFenster.h"
#include "Liste.h"
#include "SharedState.h"
#include "VerdictBox.h"

#include <QAction>
#include <QPushButton>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr qreal AnswerScale = 1.5; ///< of what is typed, in the size of the form's font

} // namespace

int Trainer::targetLanguage() const {
    return Lang1Zuerst ? 2 : 1;
}

QString Trainer::currentKey() const {
    const FlexGrid& entries = m_liste.MSFlexGrid1();
    return entries.TextMatrix(entries.Row(), Liste::ColSchluessel);
}

void Trainer::DoFehlerhandlingMitSchreiben() {
    if (!Selbsttest || !Schreiben || !canJudge())
        return;
    askForAnswer();
    // The solution comes up before the verdict.
    ZeigeLoesung = 1;
    Command3_Click();
    m_grid->setRow(SolutionRow);
    if (isAnswerRight(m_input->Ausdruck))
        acceptAnswer();
    else
        rejectAnswer();
}

void Trainer::askForAnswer() {
    const QRect line = expressionLine(SolutionRow);
    QFont font(u"Arial"_s);
    font.setPointSizeF(this->font().pointSizeF() * AnswerScale);
    m_input->placeOver({m_grid->viewport()->mapToGlobal(line.topLeft()), line.size()}, font);
    m_input->setMainOnly(MainOnly);
    m_context.prompts.exec(*m_input);
    LetzteEingabe = m_input->Ausdruck;
}

bool Trainer::isAnswerRight(const QString& answer) {
    if (isExact(answer))
        return true;
    const QString input = m_context.state.Exceptions.WorkInException(extract(answer));
    if (isKnownSynonym(input))
        return regardAsCorrect(
            uiText(
                u"Der eingegebene Ausdruck wurde in der Datenbank als Synonym für den angeforderten Ausdruck "
                "eingetragen."_s,
                u"The expression typed in, was recognized as Synonym for the required expression."_s) +
            u'\r' +
            uiText(u"Soll die Eingabe als korrekt gewertet werden?"_s,
                   u"Shall the input be regarded as correct?"_s));
    const QString type = knownRelation(input);
    if (!type.isEmpty())
        return regardAsCorrect(
            uiText(u"Der eingegebene Ausdruck wurde in der Datenbank als folgende Referenz bzgl. des "
                   u"angeforderten "
                   "Ausdrucks eingetragen: '"_s,
                   u"The expression typed in, was recognized as the following Reference to the required "
                   "expression: '"_s) +
            type + u".\r"_s +
            uiText(u"'Soll die Eingabe als korrekt gewertet werden?"_s,
                   u"'Shall the input be regarded as correct?"_s));
    return FehlerBestaetigen && isErrorWaived();
}

// A look-up that fails has found nothing, and the next one is made all the same.

bool Trainer::isExact(const QString& answer) {
    bool exact = false;
    attempt([&] {
        exact = isExactAnswer(answer, storedParts(targetLanguage()), {m_context.state.Exceptions, MainOnly});
    });
    return exact;
}

bool Trainer::isKnownSynonym(const QString& input) {
    bool known = false;
    attempt([&] { known = IsSynonym(input); });
    return known;
}

QString Trainer::knownRelation(const QString& input) {
    QString type;
    attempt([&] { type = CheckForSpecialRelation(input); });
    return type;
}

/// The four parts of the entry on the screen, from the row of the list.
ExpressionParts Trainer::storedParts(int language) const {
    const FlexGrid& entries = m_liste.MSFlexGrid1();
    const int first = language == 1 ? Liste::ColPrefix1 : Liste::ColPrefix2;
    const auto part = [&](int offset) { return entries.TextMatrix(entries.Row(), first + offset); };
    return {part(0), part(1), part(2), part(3)};
}

bool Trainer::regardAsCorrect(const QString& question) {
    const Message box{.icon = QMessageBox::Question,
                      .text = question,
                      .buttons = QMessageBox::Yes | QMessageBox::No,
                      .defaultButton = QMessageBox::Yes};
    return m_context.prompts.message(this, box) == QMessageBox::Yes;
}

bool Trainer::isErrorWaived() {
    m_confirm->setExpressions(m_input->Ausdruck, extract(m_grid->TextMatrix(SolutionRow, 0)));
    m_context.prompts.exec(*m_confirm);
    return m_confirm->Ergebnis == u"Nein"_s;
}

bool Trainer::IsSynonym(const QString& input) {
    const QString criterion = synonymCriterion(currentKey(), targetLanguage());
    return hasSynonym(criterion, input);
}

bool Trainer::hasSynonym(const QString& criterion, const QString& input) {
    dao::Recordset& synonyms = m_context.state.DBHandler.RecordsetSynonyme;
    const AnswerRules rules{m_context.state.Exceptions, MainOnly};
    for (synonyms.FindFirst(criterion); isFound(synonyms); synonyms.FindNext(criterion))
        if (isNearAnswer(input, synonymParts(synonyms), rules))
            return true;
    return false;
}

QString Trainer::CheckForSpecialRelation(const QString& input) {
    const SharedState& state = m_context.state;
    const QString asked = Lang1Zuerst ? state.Lang1Name : state.Lang2Name;
    const QString key = currentKey();
    if (key == NewEntry)
        return {};
    // The type is compared here: the name of a language may hold what means something in a criterion.
    const std::array types{RefAehnlicheBedeutung + asked, RefAndereBedeutung + asked};
    const QString criterion = u"von LIKE '%1' OR nach LIKE '%1'"_s.arg(key);
    dao::Recordset& references = m_context.state.DBHandler.RecordsetReferenzen;
    for (references.FindFirst(criterion); isFound(references); references.FindNext(criterion)) {
        const QString type = references.field(u"Typ"_s).toText(QString());
        if (std::none_of(types.begin(), types.end(), [&type](const QString& wanted) {
                return type.compare(wanted, Qt::CaseInsensitive) == 0;
            }))
            continue;
        const QString other = otherEnd(references, key);
        if (!PositioniereRecord(other)) {
            Message dangling;
            dangling.text = uiText(u"Keine Vokabel zu Referenz gefunden!"_s, u"Could not find vocabulary!"_s);
            m_context.prompts.message(this, dangling);
            return {};
        }
        if (meansOtherEntry(other, input))
            return type;
    }
    return {};
}

/// Whether the input is the expression or a synonym of the entry that PositioniereRecord went to.
bool Trainer::meansOtherEntry(const QString& key, const QString& input) {
    const AnswerRules rules{m_context.state.Exceptions, MainOnly};
    const dao::Recordset& entry = m_context.state.DBHandler.RecordsetVokabular;
    return isNearAnswer(input, entryParts(entry, m_context.state, targetLanguage()), rules) ||
           hasSynonym(synonymCriterion(key, targetLanguage()), input);
}

void Trainer::acceptAnswer() {
    ChangeErrorCount(ScoreRichtig);
    attempt([this] { AnzahlRichtig = dao::toInteger16(AnzahlRichtig + 1); });
    m_right->show();
    fitVokabelnGrid();
}

void Trainer::rejectAnswer() {
    ChangeErrorCount(ScoreFalsch);
    m_context.prompts.beep();
    m_wrong->setText(uiText(u"Nicht: "_s, u"Not: "_s) + extract(m_input->Ausdruck));
    m_wrong->show();
    m_search->show();
    m_searchEntry->setEnabled(true);
    fitVokabelnGrid();
}

void Trainer::clearVerdict() {
    if (m_search->hasFocus())
        m_step.button->setFocus();
    m_wrong->hide();
    m_wrong->clear();
    m_right->hide();
    m_search->hide();
    m_searchEntry->setEnabled(false);
}

} // namespace lingomat
