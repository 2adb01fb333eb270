// What of the list waits to be written, and the command that writes it.

#include "ErrorTrap.h"
#include "ExpressionText.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "KeptCell.h"
#include "ListSave.h"
#include "Liste.h"
#include "SharedState.h"
#include "clsCursor.h"

#include <QLabel>
#include <QLayout>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// A box that reports a failure takes the focus, upon which an open editor may record its row.
std::vector<qint16> copyOf(KeyRecord& record) {
    const auto keys = record.keys();
    return {keys.begin(), keys.end()};
}

} // namespace

qint16 Liste::RowPos_To_RecPos(int row) {
    dao::Recordset& entries = m_context.state.DBHandler.RecordsetVokabular;
    entries.FindFirst(u"Vokabular.ID LIKE '%1'"_s.arg(m_grid->TextMatrix(row, ColSchluessel)));
    return entries.NoMatch() ? qint16{-1} : dao::toInteger16(entries.field(0).toInteger());
}

void Liste::ZeileGeaendert() {
    trapped(m_context.prompts, [this] {
        enableSaving(true);
        const int row = m_grid->Row();
        if (m_grid->TextMatrix(row, ColSchluessel) == u"*"_s)
            return;
        const qint16 key = RowPos_To_RecPos(row);
        if (GeaenderteZeilen.contains(key))
            return;
        if (key == -1) {
            m_context.prompts.exclamation(
                this, uiText(u"Zeile nicht in Datenbank gefunden!"_s, u"Row not found in database!"_s));
            return;
        }
        GeaenderteZeilen.append(key);
    });
}

void Liste::SetzeSelectedZeilenGeaendert() {
    trapped(m_context.prompts, [this] {
        const KeptCell kept(*m_grid);
        const int step = MehrfachStart < MehrfachEnde ? 1 : -1;
        for (int row = MehrfachStart; row != MehrfachEnde;) {
            row += step;
            m_grid->setRow(row);
            ZeileGeaendert();
        }
    });
}

bool Liste::CheckIfEntryChanged() const {
    const int column = m_grid->Col();
    if (column != ColWortart && column != ColQuelle && column != ColBeispielsatz && column != ColZusatzinfo)
        return false;
    const std::optional<QString> typed = overlayText();
    return typed && extract(*typed) != extract(m_grid->TextMatrix(m_grid->Row(), column));
}

void Liste::CheckIndices() {
    if (AnzahlGeloescht != 0)
        GeaenderteZeilen.removeAllOf(GeloeschteZeilen);
}

void Liste::Command2_Click() {
    clsCursor cursor;
    cursor.SetCursorToBusy();
    commitOverlay();
    trapped(m_context.prompts, [this] { saveChanges(); });
    hideSaveProgress();
    cursor.RestoreCursor();
}

void Liste::saveChanges() {
    CheckIndices();
    showSaveProgress();
    const Saving result = saveRows();
    hideSaveProgress();
    if (result == Saving::CleanUpFailed)
        return;
    if (result == Saving::Stopped) {
        m_context.prompts.critical(this, u"Error in Command2_Click!"_s); // has no German form
        return;
    }
    forgetChanges();
    m_context.state.DBIsEmpty = !m_context.state.SelectionValid;
    Q_EMIT stateChanged();
    // A box that came up in between gave the grid the focus, which marks what was being written then.
    if (MarkierteZeile > 0)
        SetzeMarke();
    ConditionToUI();
}

void Liste::forgetChanges() {
    GeaenderteZeilen.clear();
    GeloeschteZeilen.clear();
    NeueZeilen.clear();
    AnzahlNeu = 0;
}

/// Deletions, changes, new rows; what is written stays written. A row that fails is told to the user and
/// left behind.
Liste::Saving Liste::saveRows() {
    if (pendingChanges() == 0)
        return Saving::Done;
    CDBHandler& session = m_context.state.DBHandler;
    ListSave save(m_context, *m_grid);
    const dao::WriteBurst burst(session.Database);

    int progress = 0;
    for (const qint16 key : copyOf(GeloeschteZeilen)) {
        setSaveProgress(++progress);
        if (save.DeleteOneRow(key) == ListSave::Stop)
            return Saving::Stopped;
    }
    if (AnzahlGeloescht > 0 && !session.BereinigeDB())
        return Saving::CleanUpFailed;
    for (const qint16 key : copyOf(GeaenderteZeilen)) {
        setSaveProgress(++progress);
        if (!GeloeschteZeilen.contains(key) && save.UpdateOneRow(key) == ListSave::Stop)
            return Saving::Stopped;
    }
    save.AddNewRows(AnzahlNeu, [&](int added) { setSaveProgress(progress + added); });
    return Saving::Done;
}

/// Shown at once: while a save runs, control does not return to the event loop.
void Liste::showSaveProgress() {
    m_lblProgress->setText(uiText(u"Änderungen werden zurückgeschrieben"_s, u"Changes are being saved"_s));
    m_progressBar->setRange(0, pendingChanges());
    m_progressBar->setValue(0);
    m_lblProgress->show();
    m_progressBar->show();
    centralWidget()->layout()->activate();
    m_lblProgress->repaint();
    m_progressBar->repaint();
}

void Liste::setSaveProgress(int value) {
    constexpr int Steps = 100; // of the bar; painting each row would take longer than saving it
    const int stride = m_progressBar->maximum() / Steps + 1;
    m_progressBar->setValue(value);
    if (value % stride == 0)
        m_progressBar->repaint();
}

void Liste::hideSaveProgress() {
    m_lblProgress->hide();
    m_progressBar->hide();
    m_progressBar->setValue(0);
}

} // namespace lingomat
