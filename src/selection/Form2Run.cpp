#include "Form2.h"

#include "DateFilter.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "ListPairFrame.h"
#include "Liste.h"
#include "LstFkt.h"
#include "Progress.h"
#include "ScoreFilter.h"
#include "SelectionFilters.h"
#include "SharedState.h"
#include "Trainer.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

ChosenValues chosenValues(const ListPair* pair) {
    return {.offered = pair->left->count(), .chosen = listItems(*pair->right)};
}

DateRange dateRange(const DateFilter& filter, const clsDateEinsteller& setter) {
    return {filter.von(), filter.bis(), setter.MinDatum, setter.MaxDatum};
}

} // namespace

void Form2::Command4_Click() {
    m_cursor.SetCursorToBusy();
    try {
        runSelection();
    } catch (...) {
        reportCurrentException(m_context.prompts);
        m_context.progress.hide();
        m_cursor.RestoreCursor();
    }
}

void Form2::runSelection() {
    if (!mayDropUnsavedRows())
        return; // the cursor stays busy until the next run is over
    showProgress();
    const SelectionFilters chosen = filters();
    buildStatement(m_query, chosen);
    buildCriterion(m_query, chosen, m_context.state, m_context.state.Exceptions);
    const QString criterion = searchCriterion(m_query);
    openSelection(criterion);
    trapped(m_context.prompts, [this] { initialisiereListe(); });
    if (m_context.state.DBHandler.RecordsetAuswahl.NoMatch()) {
        reportNoHits();
        return;
    }
    fillList(criterion);
    handOver();
    hideProgress();
    AuswahlGeaendert = false;
    m_cursor.RestoreCursor();
}

bool Form2::mayDropUnsavedRows() {
    if (m_liste.pendingChanges() < 1)
        return true;
    const bool proceed = m_context.prompts.yesNo(
        this, uiText(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich fortsetzen?"_s,
                     u"Not all changes have been saved! Do you really want to proceed?"_s));
    if (!proceed) {
        m_liste.setWindowState(m_liste.windowState() & ~Qt::WindowMinimized);
        m_liste.show();
        m_liste.raise();
        m_liste.activateWindow();
        return false;
    }
    m_liste.forgetChanges();
    return true;
}

SelectionFilters Form2::filters() const {
    const auto language = [](const LanguageBoxes& boxes) {
        return LanguageFilter{boxes.gate->isChecked(), boxes.prefix->text(), boxes.main->text(),
                              boxes.suffix->text(), boxes.comment->text()};
    };
    const auto values = [this](const QString& kind) { return chosenValues(m_lists->pairOfKind(kind)); };
    return {
        .bereich = values(u"Bereich"_s),
        .grammatikalisch = values(u"Grammatikalisch"_s),
        .funktional = values(u"Funktional"_s),
        .referenzen = values(u"Referenzen"_s),
        .lang1 = language(m_lang1),
        .lang2 = language(m_lang2),
        .wortart = values(u"Wortart"_s),
        .beispielsatz = m_beispielsatz->text(),
        .zusatzinfo = m_zusatzinfo->text(),
        .quelle = values(u"Quelle"_s),
        .eingabedatum = dateRange(*m_entryFilter, m_entryDates),
        .aenderungsdatum = dateRange(*m_changeFilter, m_changeDates),
        .minScore = m_score->minScore(),
        .maxScore = m_score->maxScore(),
    };
}

void Form2::showProgress() {
    Progress& progress = m_context.progress;
    const QString text = uiText(u"Vokabelliste wird erstellt"_s, u"Creating Vocab List"_s);
    progress.setWindowTitle(text);
    progress.setStatus(text);
    progress.setValue(0);
    progress.showNow();
}

void Form2::hideProgress() {
    Progress& progress = m_context.progress;
    progress.hide();
    progress.setWindowTitle({});
    progress.setStatus({});
}

void Form2::openSelection(const QString& criterion) {
    dao::Recordset& selection = m_context.state.DBHandler.RecordsetAuswahl;
    if (selection.isOpen()) // it is not after a run that failed here
        selection.Close();
    selection =
        m_context.state.DBHandler.Database.OpenRecordset(m_query.RelQueryString, dao::RecordsetType::Dynaset);
    selection.FindFirst(criterion);
    Progress& progress = m_context.progress;
    progress.setMaximum(std::max(1, selection.RecordCount()));
    progress.setValue(std::min(selection.AbsolutePosition(), progress.maximum()));
}

void Form2::fillList(const QString& criterion) {
    dao::Recordset& selection = m_context.state.DBHandler.RecordsetAuswahl;
    Progress& progress = m_context.progress;
    FlexGrid& grid = m_liste.MSFlexGrid1();
    const QString label = uiText(u"Anzahl Vokabeln: "_s, u"Number of entries: "_s);
    // Three look-ups a row: without this each of them would lock the file for itself.
    const dao::SteadyReading reading(m_context.state.DBHandler.Database);

    grid.AddItem({});
    ZeileAusDatensatz(1, false);
    selection.FindNext(criterion);
    progress.setMaximum(selection.RecordCount());
    while (!selection.NoMatch()) {
        const int position = selection.AbsolutePosition();
        progress.setValue(position);
        progress.setStatus(label + QString::number(position));
        grid.AddItem({});
        ZeileAusDatensatz(grid.Rows() - 1, true);
        selection.FindNext(criterion);
    }
    progress.setValue(selection.RecordCount());
    showCount(grid.Rows() - 1);
}

/// A row that cannot be written costs one message; the run goes on.
void Form2::ZeileAusDatensatz(int row, bool last) {
    trapped(m_context.prompts, [&] { m_liste.ZeileAusDatensatz(row, last, m_lookups); });
}

/// Tells the other windows of the new rows.
void Form2::handOver() {
    FlexGrid& grid = m_liste.MSFlexGrid1();
    m_liste.SetzeStatus();
    m_liste.AnzahlGeaendert = 0;
    m_liste.MarkierteZeile = 0;
    grid.setRow(0);
    m_trainer.Command6_Click();
    const bool hasRows = grid.Rows() > 1;
    m_context.state.SelectionValid = hasRows;
    if (hasRows) {
        grid.setRow(1);
        grid.setCol(1);
    }
    Q_EMIT selectionMade();
}

/// The Trainer keeps its session and SelectionValid its value, though the list is empty by now.
void Form2::reportNoHits() {
    m_context.progress.setValue(m_context.state.DBHandler.RecordsetAuswahl.RecordCount());
    m_context.progress.hide();
    m_context.prompts.exclamation(
        this, uiText(u"Es wurden keine Einträge gefunden."_s, u"There were no entries found."_s));
    showCount(0);
    m_cursor.RestoreCursor();
}

void Form2::showCount(int count) {
    statusBar()->showMessage(QString::number(count) +
                             uiText(u" Vokabeln ausgewählt"_s, u" entries selected"_s));
}

void Form2::initialisiereListe() {
    m_liste.initialisiereListe();
}

QString Form2::AllGrammatikalisches(const QString& id) {
    CDBHandler& session = m_context.state.DBHandler;
    return joinedAttributes(id, session.RecordsetGrammatikalisch_Z, u"IDG"_s,
                            session.RecordsetGrammatikalisch);
}

QString Form2::AllFunktionales(const QString& id) {
    CDBHandler& session = m_context.state.DBHandler;
    return joinedAttributes(id, session.RecordsetFunktional_Z, u"IDF"_s, session.RecordsetFunktional);
}

QString Form2::joinedAttributes(const QString& id, dao::Recordset& links, const QString& keyField,
                                dao::Recordset& attributes) {
    QStringList texts;
    const bool complete = trapped(m_context.prompts, [&] {
        const QString ofEntry = u"IDV LIKE '"_s + id + u'\'';
        links.FindFirst(ofEntry);
        while (!links.NoMatch()) {
            attributes.FindFirst(u"IDA LIKE '"_s + links.field(keyField).toText() + u'\'');
            if (!attributes.NoMatch())
                texts.append(attributes.field(u"Attribut_Text"_s).toText());
            links.FindNext(ofEntry);
        }
    });
    return complete ? texts.join(u';') : QString();
}

} // namespace lingomat
