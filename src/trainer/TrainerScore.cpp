// The score: moved by every verdict, in the list and in the database at once.

#include "Trainer.h"

#include "ConfirmDlg.h"
#include "EntryRecords.h"
#include "ErrorScore.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Liste.h"
#include "Prompts.h"
#include "SharedState.h"
#include "TrainingWalk.h"

using namespace Qt::StringLiterals;

namespace lingomat {

void Trainer::DoFehlerhandlingOhneSchreiben() {
    if (!Selbsttest || Schreiben || !canJudge())
        return;
    m_context.prompts.exec(*m_confirmKnown);
    if (m_confirmKnown->Ergebnis != u"Yes"_s) {
        ChangeErrorCount(ScoreFalsch);
        return;
    }
    ChangeErrorCount(ScoreRichtig);
    attempt([this] { AnzahlRichtig = dao::toInteger16(AnzahlRichtig + 1); });
}

void Trainer::ChangeErrorCount(int verdict) {
    const bool right = verdict == ScoreRichtig;
    if (right && Schleife)
        attempt([this] { SchleifeStatus(Position) = LoopEntryDone; });
    QString key;
    int score = 0;
    const bool isListed = trapped(m_context.prompts, [&] {
        FlexGrid& entries = m_liste.MSFlexGrid1();
        const int row = AktuelleZeile();
        if (row < 1) // the header has no score
            throw dao::Error(dao::ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
        entries.setRow(row);
        key = entries.TextMatrix(entries.Row(), Liste::ColSchluessel);
        entries.setCol(Liste::ColScore);
        score = scoreAfterVerdict(entries.Text(), right);
        entries.setText(QString::number(score));
    });
    if (!isListed || key == NewEntry) // no row of the database yet, and as a pattern every one of them
        return;
    attempt([&] {
        // A row that is gone must not pass its score on to the one that the recordset still stands on.
        if (!PositioniereRecord(key))
            throw dao::Error(dao::ErrorNumber::NoCurrentRecord, u"No current record."_s);
        dao::Recordset& vokabular = m_context.state.DBHandler.RecordsetVokabular;
        vokabular.Edit();
        vokabular.setField(u"Score"_s, score);
        vokabular.Update();
    });
}

} // namespace lingomat
