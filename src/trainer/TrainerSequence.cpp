#include "Trainer.h"

#include "EntryRecords.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "Progress.h"
#include "SharedState.h"
#include "TrainingWalk.h"

#include <QLabel>
#include <QProgressBar>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

void Trainer::Command6_Click() {
    endSynonyms();
    showSynonymButtons(false);
    attempt([this] { AnzahlEintraege = dao::toInteger16(m_liste.countRows()); });
    if (Reihenfolge_shuffle)
        attempt([this] { shuffle(); });
    m_progressBar->setVisible(!Reihenfolge_random);
    if (Selbsttest && Schleife)
        initialisiereSchleife();
    ZeigeLoesung = 0;
    Position = 0;
    RundenPosition = 0;
    AnzahlRichtig = 0;
    RowPositionToUI();
    ZeigeVokabel(0);
    InitStatusBar();
}

void Trainer::initialisiereSchleife() {
    if (AnzahlEintraege != 0)
        SchleifeStatus = openLoop(AnzahlEintraege);
}

void Trainer::shuffle() {
    if (AnzahlEintraege < 1)
        return;
    Progress& progress = m_context.progress;
    const auto hideProgress = qScopeGuard([&progress] { progress.hide(); });
    m_context.random.reseed();
    progress.setWindowTitle(uiText(u"Vokabeln werden gemischt"_s, u"Shuffeling vocabulary ..."_s));
    progress.setStatus({});
    progress.setMinimum(0);
    progress.setMaximum(AnzahlEintraege);
    progress.setValue(0);
    progress.showNow();
    Sequenz = shuffledEntries(
        AnzahlEintraege, [this] { return m_context.random.next(); },
        [&progress](int place) { progress.setValue(place); });
    OptionsToUI();
    RowPositionToUI();
}

qint16 Trainer::randomRow() {
    m_context.random.reseed();
    return drawnEntry(AnzahlEintraege, m_context.random.next());
}

void Trainer::Command3_Click() {
    if (ZeigeLoesung != 0)
        revealSolution();
    else
        askNext();
}

void Trainer::revealSolution() {
    // In random order nothing may have been drawn yet; then what was browsed to stays.
    if (Position > 0 || !Reihenfolge_random)
        showCurrentEntry();
    ZeigeLoesung = 0;
    DoFehlerhandlingOhneSchreiben();
}

void Trainer::askNext() {
    if (Reihenfolge_random) {
        attempt([this] { Position = randomRow(); });
    } else {
        attempt([this] { Position = dao::toInteger16(Position + 1); });
        if (Selbsttest && Schleife && !moveToOpenEntry()) {
            sayEndOfSequence();
            return;
        }
        RowPositionToUI();
    }
    if (Position >= listRows()) {
        sayEndOfSequence();
        --Position;
        return;
    }
    showCurrentEntry();
    ZeigeLoesung = 1;
    showSynonymButtons(true);
    DoFehlerhandlingMitSchreiben();
}

/// An error on the way counts as an open entry, so that the step goes on behind it.
bool Trainer::moveToOpenEntry() {
    bool isOpen = true;
    attempt([this, &isOpen] { isOpen = SetIndexAccordingToSchleife(); });
    return isOpen;
}

bool Trainer::SetIndexAccordingToSchleife() {
    const LoopPlace place = nextOpenPlace(Position, RundenPosition,
                                          {.status = SchleifeStatus,
                                           .entries = AnzahlEintraege,
                                           .rows = listRows(),
                                           .answeredRight = AnzahlRichtig});
    Position = dao::toInteger16(place.position);
    RundenPosition = dao::toInteger16(place.roundPosition);
    if (place.left) {
        m_progressBar->setMaximum(*place.left);
        m_statusPanels[PanelEntries]->setText(QString::number(*place.left));
    }
    return place.isOpen;
}

void Trainer::back_Click() {
    moveTo(1);
    if (Position > 0 && Position < listRows())
        showMovedTo();
    showSynonymButtons(true);
}

void Trainer::ToEnd_Click() {
    moveTo(listRows() - 1);
    if (Position > 0 && Position < listRows())
        showMovedTo();
    showSynonymButtons(true);
}

void Trainer::Command1_Click() {
    moveTo(Position - 1);
    if (Position > 0 && Position < listRows()) {
        showMovedTo();
    } else {
        Message beginning;
        beginning.text = u"Beginning"_s; // the same in both languages
        m_context.prompts.message(this, beginning);
        Position = 1;
    }
    showSynonymButtons(true);
}

void Trainer::Command2_Click() {
    moveTo(Position + 1);
    if (Position < listRows()) {
        showMovedTo();
    } else {
        sayEndOfSequence();
        --Position;
    }
    showSynonymButtons(true);
}

/// What is reached by moving is browsed: it is shown with its solution. In random order there is no place
/// to move to; the entry shown is drawn instead.
void Trainer::moveTo(int position) {
    ZeigeLoesung = 1;
    if (Reihenfolge_random)
        return;
    attempt([this, position] { Position = dao::toInteger16(position); });
    RowPositionToUI();
}

void Trainer::showMovedTo() {
    if (!Reihenfolge_random) {
        showCurrentEntry();
        return;
    }
    attempt([this] { ZeigeVokabel(randomRow()); });
}

void Trainer::showCurrentEntry() {
    int row = 0;
    if (trapped(m_context.prompts, [this, &row] { row = AktuelleZeile(); }))
        ZeigeVokabel(row);
    else
        forgetEntry();
}

void Trainer::sayEndOfSequence() {
    Message end;
    end.text = uiText(u"Die Sequenz ist beendet."_s, u"End of sequence."_s);
    m_context.prompts.message(this, end);
}

/// Rows of the list, the header included; the placeholder of an empty list is no entry.
int Trainer::listRows() const {
    return m_liste.countRows() + 1;
}

int Trainer::returnSequenz(int index) const {
    return Sequenz(index);
}

int Trainer::AktuelleZeile() const {
    return Reihenfolge_shuffle ? returnSequenz(Position) : Position;
}

bool Trainer::PositioniereRecord(const QString& id) {
    return findEntry(m_context.state.DBHandler.RecordsetVokabular, id);
}

void Trainer::ZeigeVokabel(int row) {
    if (!Schreiben)
        clearVerdict();
    if (row == 0) {
        clearDisplay();
    } else {
        if (!trapped(m_context.prompts, [this, row] { showEntry(row); }))
            forgetEntry(); // its row is gone, and the one before it must not be taken for it
        showProgress();
    }
    m_grid->setRow(QuestionRow);
    m_grid->setCol(0);
}

void Trainer::clearDisplay() {
    forgetEntry();
    m_progressBar->setRange(0, std::max<int>(AnzahlEintraege, 1));
    m_progressBar->setValue(0);
    showSynonymButtons(false);
}

void Trainer::forgetEntry() {
    m_shown = {};
    endSynonyms();
    setExpression(QuestionRow, {});
    setExpression(SolutionRow, {});
    ClearDetails();
}

bool Trainer::canJudge() const {
    return Position > 0 && m_shown.isListed;
}

void Trainer::showEntry(int row) {
    if (row >= listRows())
        throw dao::Error(dao::ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
    FlexGrid& entries = m_liste.MSFlexGrid1();
    const ShownEntry entry{
        true,
        entries.TextMatrix(row, Liste::ColSchluessel),
        {entries.TextMatrix(row, Liste::ColSprache1), entries.TextMatrix(row, Liste::ColSprache2)}};
    entries.setRow(row);
    if (entry.key != m_shown.key)
        endSynonyms();
    m_shown = entry;
    const auto& [language1, language2] = entry.expressions;
    setExpression(QuestionRow, Lang1Zuerst ? language1 : language2);
    if (ZeigeLoesung == 1) {
        setExpression(SolutionRow, Lang1Zuerst ? language2 : language1);
        showDetails(row);
    } else {
        setExpression(SolutionRow, {});
        ClearDetails();
        clearVerdict();
    }
}

void Trainer::showProgress() {
    if (Reihenfolge_random)
        return;
    m_progressBar->setVisible(true); // random order has hidden it
    const int place = Selbsttest && Schleife ? RundenPosition : Position;
    m_progressBar->setValue(std::min(place, m_progressBar->maximum()));
    m_statusPanels[PanelPosition]->setText(QString::number(place));
}

void Trainer::InitStatusBar() {
    m_statusPanels[PanelEntries]->setText(QString::number(m_liste.countRows()));
    m_statusPanels[PanelPosition]->setText(Reihenfolge_random ? QString() : u"0"_s);
}

void Trainer::attempt(const std::function<void()>& step) {
    trapped(m_context.prompts, step);
}

} // namespace lingomat
