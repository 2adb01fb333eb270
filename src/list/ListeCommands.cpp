// The commands round the grid: their buttons, their menu entries, what they do and when they can be had.

#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "SharedState.h"
#include "clsCursor.h"
#include "frmSuchen.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr int TabOfColumns = 4; // of the options dialog

} // namespace

void Liste::ConditionToUI() {
    const bool canDelete = countRows() > 0 && m_grid->Row() != 0;
    m_command4->setEnabled(canDelete);
    m_mnZeileLoeschen->setEnabled(canDelete);
    enableSaving(pendingChanges() >= 1);
    m_referenzen->setEnabled(MarkierteZeile > 0);
    m_mnReferenzen->setEnabled(MarkierteZeile > 0);
    m_mnSuchen->setEnabled(m_context.state.SelectionValid);
    m_wordSort->setEnabled(m_context.state.SelectionValid);
    SetzeStatus();
}

void Liste::enableSaving(bool enabled) {
    m_command2->setEnabled(enabled);
    m_mnSpeichern->setEnabled(enabled);
}

void Liste::Command1_Click() {
    commitOverlay();
    hide();
}

void Liste::Command3_Click() {
    clsCursor cursor;
    cursor.SetCursorToBusy();
    commitOverlay();
    trapped(m_context.prompts, [this] { addRow(); });
    cursor.RestoreCursor();
}

void Liste::addRow() {
    const qint16 number = dao::toInteger16(AnzahlNeu + 1);
    if (m_grid->Rows() == 2 && m_grid->RowHeight(1) == 0) {
        m_grid->setRowHeight(1, m_grid->RowHeight(0));
    } else {
        m_grid->AddItem(QString());
        if (m_grid->Rows() == 2)
            m_grid->setRowHeight(1, m_grid->RowHeight(0));
    }
    m_grid->setRow(m_grid->Rows() - 1);
    AnzahlNeu = number;
    NeueZeilen.push_back(number);
    m_grid->setCol(ColSchluessel);
    m_grid->setText(u"*"_s);
    m_grid->setCol(ColSprache1);
    m_grid->setTopRow(m_grid->Row());
    Q_EMIT rowsChanged();
    m_grid->setFocus();
    SetzeMarke();
    updateSelectionValid();
    enableSaving(true);
    ConditionToUI();
}

void Liste::updateSelectionValid() {
    m_context.state.SelectionValid = countRows() > 0;
    Q_EMIT stateChanged();
}

void Liste::Command4_Click() {
    if (m_grid->Row() < 1) {
        m_context.prompts.beep();
        return;
    }
    clsCursor cursor;
    cursor.SetCursorToBusy();
    commitOverlay();
    trapped(m_context.prompts, [this] { deleteRow(); });
    cursor.RestoreCursor();
}

void Liste::deleteRow() {
    const int row = m_grid->Row();
    const int column = m_grid->Col();
    const bool isStored = m_grid->TextMatrix(row, ColSchluessel) != u"*"_s;
    if (isStored)
        GeloeschteZeilen.append(RowPos_To_RecPos(row));

    mark().take(MarkierteZeile);
    if (m_grid->Rows() == 2)
        clearOnlyRow();
    else
        m_grid->RemoveItem(row);
    if (!isStored) // there may be new rows that count no more: given up by the user, or refused by the file
        AnzahlNeu = std::min(AnzahlNeu, newRows());
    SetzeStatus();
    m_grid->setCol(column);
    MarkierteZeile = 0;
    updateSelectionValid();
    Q_EMIT rowsChanged();
    enableSaving(true);
    SetzeMarke();
    ConditionToUI();
}

qint16 Liste::newRows() const {
    int rows = 0;
    for (int row = 1; row < m_grid->Rows(); ++row)
        rows += m_grid->TextMatrix(row, ColSchluessel) == u"*"_s;
    return static_cast<qint16>(std::min<int>(rows, std::numeric_limits<qint16>::max()));
}

/// The last row stays as the placeholder, which nothing can be done with.
void Liste::clearOnlyRow() {
    m_grid->setRowHeight(1, 0);
    for (int column = ColSchluessel; column < m_grid->Cols(); ++column)
        m_grid->setTextMatrix(1, column, QString());
    mark().take(1);
    m_grid->setRow(0);
}

void Liste::Command5_Click() {
    commitOverlay();
    if (pendingChanges() > 0)
        Command2_Click();
    Command1_Click();
}

void Liste::Drucken_Click() {
    commitOverlay();
    Q_EMIT printRequested();
}

void Liste::mnAnsichtOptionen_Click() {
    commitOverlay();
    Q_EMIT optionsRequested(TabOfColumns);
}

void Liste::mnOptionen_Click() {
    commitOverlay();
    Q_EMIT optionsRequested(0);
}

void Liste::Command6_Click() {
    Q_EMIT specialCharactersRequested(*this);
}

void Liste::Referenzen_Click() {
    commitOverlay();
    trapped(m_context.prompts, [this] {
        if (mayShowReferences())
            Q_EMIT referencesRequested();
    });
}

/// References belong to a stored entry.
bool Liste::mayShowReferences() {
    if (m_grid->TextMatrix(m_grid->Row(), ColSchluessel) != u"*"_s)
        return true;
    const auto answer = m_context.prompts.message(
        this,
        {.icon = QMessageBox::Warning,
         .title = {},
         .text = uiText(
             u"Die Referenzen können erst dann bearbeitet werden, wenn der Vokabeleintrag in die "
             u"Datenbank zurückgeschrieben wurde. Sollen die Daten der aktuellen Zeile, sowie eventuelle "
             u"weitere gemachte Änderungen jetzt gesichert werden?"_s,
             u"The References can only be processed, after the vocab entry has been saved to the "
             u"database.\n"
             u"Shall the data of the current row as well as possible further changes be saved now?"_s),
         .buttons = QMessageBox::Yes | QMessageBox::No});
    if (answer != QMessageBox::Yes)
        return false;
    Command2_Click();
    return true;
}

void Liste::mnSuchen_Click() {
    if (m_grid->Rows() == 1)
        return;
    commitOverlay();
    trapped(m_context.prompts, [this] {
        frmSuchen search(m_context.prompts,
                         {.grid = *m_grid,
                          .columns = {ColSprache1, ColSprache2},
                          .languages = {m_context.state.Lang1Name, m_context.state.Lang2Name},
                          .sortByCol = [this] { SortByAll(); },
                          .markRow = [this] { SetzeMarke(); }},
                         this);
        m_context.prompts.exec(search);
    });
}

} // namespace lingomat
