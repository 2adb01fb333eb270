#include "AddListBox.h"
#include "CellOverlay.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "Globals.h"
#include "Liste.h"
#include "ValueLists.h"
#include "clsCursor.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// Kind of the value list that the texts of an overlay go to; none for free text.
QString valueKind(CellEditor overlay) {
    switch (overlay) {
    case CellEditor::WortartBox: return u"Wortart"_s;
    case CellEditor::QuelleBox: return u"Quelle"_s;
    default: return {};
    }
}

} // namespace

void Liste::buildOverlay() {
    m_overlay = new CellOverlay(*m_grid, m_context.values, m_context.prompts, *centralWidget());
}

void Liste::connectEditing() {
    m_overlay->onKey = [this](int key, Qt::KeyboardModifiers modifiers) {
        return EditKeyCode(key, modifiers);
    };
    connect(m_grid, &FlexGrid::clicked, this, &Liste::MSFlexGrid1_Click);
    connect(m_grid, &FlexGrid::LeaveCell, this, &Liste::MSFlexGrid1_LeaveCell);
    connect(m_grid, &FlexGrid::Scroll, this, &Liste::emergencyCommit);
    connect(m_grid, &FlexGrid::ScrollEnd, this, &Liste::fillPendingRows);
    connect(m_grid, &FlexGrid::mouseMoved, this, &Liste::MSFlexGrid1_MouseMove);
    m_grid->viewport()->installEventFilter(this);
    m_grid->setTakesInputMethods(true);
}

// The selection.

void Liste::SetMehrfachParameter() {
    trapped(m_context.prompts, [this] {
        MehrfachStart = m_grid->Row();
        MehrfachEnde = takesSeveralRows(m_grid->Col()) ? m_grid->RowSel() : MehrfachStart;
    });
}

bool Liste::severalRowsSelected() const {
    return MehrfachEnde >= 0 && MehrfachEnde != MehrfachStart;
}

// Opening.

void Liste::MSFlexGrid1_MouseMove() {
    const bool onHeader = m_grid->MouseRow() == 0;
    m_grid->setToolTip(
        onHeader ? uiText(u"Klicken, um nach dieser Spalte zu Sortieren"_s, u"Click to sort by this column"_s)
                 : uiText(u"Klicken oder Taste drücken, um Daten einzugeben. Um zu einer Zelle "
                          "zu gelangen, die Zelle anklicken oder Pfeiltasten verwenden"_s,
                          u"Click or press key to type in data. To get to a cell, click on the "
                          "cell or use arrow keys"_s));
    SetColResize();
}

void Liste::MSFlexGrid1_Click() {
    LetzteSpalte = m_grid->Col();
    if (std::exchange(SortKlick, false) || !cellCanBeEdited())
        return;
    if (editorOf(m_grid->Col()) != CellEditor::None)
        openEditor(QString());
}

bool Liste::MSFlexGrid1_KeyPress(int key, const QString& typed) {
    const bool ctrl = std::exchange(CtrlGedrueckt, false);
    if (!cellCanBeEdited())
        return false;
    if (MSFlexGrid_KeyPress_Standard(key))
        return true;
    const CellEditor editor = editorOf(m_grid->Col());
    if (editor == CellEditor::None) {
        m_context.prompts.beep();
        return true;
    }
    if (isOverlay(editor) && MSFlexGridDoSonderzeichen(key))
        return true;
    openEditor(ctrl ? QGuiApplication::clipboard()->text() : typed);
    return true;
}

/// Not the header, and not the row without height that stands for an empty list.
bool Liste::cellCanBeEdited() const {
    return m_grid->Row() > 0 && m_grid->Col() != ColSchluessel && m_grid->RowHeight(m_grid->Row()) > 0;
}

void Liste::openEditor(const QString& typed) {
    trapped(m_context.prompts, [this, &typed] {
        SetMehrfachParameter(); // code may have moved the current cell since the last key
        const CellEditor editor = editorOf(m_grid->Col());
        if (isOverlay(editor))
            MSFlexGridEdit(editor, typed);
        else if (editor == CellEditor::Attributes)
            editAttributes();
        else
            MoveAusdruckDialog(initialisiereAusdruckDialog(), typed);
    });
}

void Liste::MSFlexGridEdit(CellEditor overlay, const QString& typed) {
    m_overlay->open(overlay, m_grid->Text(), typed);
}

void Liste::editAttributes() {
    const AttributeNames names = attributeNames(m_grid->Col());
    const QStringList before = m_context.values.values(names.kind);
    AddListBox dialog(m_context.prompts, m_context.values,
                      {*m_grid, [this] { ZeileGeaendert(); }, MehrfachStart, MehrfachEnde}, this);
    dialog.Modus = names.modus;
    connect(&dialog, &AddListBox::specialCharactersRequested, this, &Liste::specialCharactersRequested);
    m_context.prompts.exec(dialog);
    announceNewValues(before, names.kind);
}

// Taking over.

std::optional<QString> Liste::overlayText() const {
    const CellEditor open = m_overlay->openEditor();
    if (open == CellEditor::None || open != editorOf(m_grid->Col()))
        return {};
    return m_overlay->text();
}

void Liste::MSFlexGrid1_GotFocus() {
    if (m_committing)
        return;
    const bool typed = overlayText().has_value();
    commitOverlay();
    fillPendingRows();
    // A focus that comes back by itself marks nothing after a sort.
    if (typed || !m_sorted)
        SetzeMarke();
}

void Liste::MSFlexGrid1_LeaveCell() {
    commitOverlay();
}

void Liste::commitOverlay() {
    if (m_committing || !overlayText())
        return;
    const QScopedValueRollback guard(m_committing, true);
    trapped(m_context.prompts, [this] {
        spreadSelection(severalRowsSelected() && allRowsAreMeant());
        clsCursor cursor;
        cursor.SetCursorToBusy();
        recordChanges();
        FlexGridDoCell();
        cursor.RestoreCursor();
    });
    m_grid->setRow(m_grid->Row()); // the selection has done its work
}

bool Liste::allRowsAreMeant() {
    return m_context.prompts.yesNo(this, uiText(u"Änderungen für alle selektierten Zellen vornehmen?"_s,
                                                u"Shall the changes be applied to all selected rows?"_s));
}

/// Sets the selection to the rows that the next text goes into.
void Liste::spreadSelection(bool allRows) {
    if (!allRows)
        MehrfachEnde = MehrfachStart;
    m_grid->setColSel(m_grid->Col());
    m_grid->setRowSel(allRows ? MehrfachEnde : m_grid->Row());
}

/// Before the cells are written: what they hold tells whether anything changes.
void Liste::recordChanges() {
    if (CheckIfEntryChanged())
        ZeileGeaendert();
    if (!severalRowsSelected())
        return;
    SetzeSelectedZeilenGeaendert();
    MehrfachEnde = -1;
}

void Liste::FlexGridDoCell() {
    const QString kind = valueKind(m_overlay->openEditor());
    const QString text = MSFlexGrid_GotFocus();
    if (!kind.isEmpty())
        noteValue(text, kind);
}

/// Writes what stands in the overlay into the selection, which takes the overlay away.
QString Liste::MSFlexGrid_GotFocus() {
    const QString text = extract(*overlayText());
    writeSelection(text);
    m_overlay->hide();
    return text;
}

void Liste::writeSelection(const QString& text) {
    m_grid->setFillStyle(FlexGrid::Fill::Repeat);
    m_grid->setText(text);
    m_grid->setFillStyle(FlexGrid::Fill::Single);
}

void Liste::noteValue(const QString& text, const QString& kind) {
    const QStringList before = m_context.values.values(kind);
    m_context.values.AddToComboBoxes(text, kind);
    announceNewValues(before, kind);
}

void Liste::announceNewValues(const QStringList& before, const QString& kind) {
    const QStringList added = newValues(before, m_context.values.values(kind));
    for (const QString& value : added)
        Q_EMIT valueEntered(value, kind);
}

// Where nobody can be asked: the current row takes what was typed at once, and the others wait.

void Liste::emergencyCommit() {
    if (m_committing || !overlayText())
        return;
    const QScopedValueRollback guard(m_committing, true);
    trapped(m_context.prompts, [this] {
        m_fillPending = severalRowsSelected();
        const int rowSel = m_grid->RowSel();
        if (CheckIfEntryChanged())
            ZeileGeaendert();
        m_grid->setRowSel(m_grid->Row());
        m_grid->setColSel(m_grid->Col());
        FlexGridDoCell();
        m_grid->setRowSel(rowSel);
    });
}

void Liste::fillPendingRows() {
    if (m_committing || !std::exchange(m_fillPending, false))
        return;
    // Whatever moved the current cell since has ended the selection.
    if (m_grid->Row() != MehrfachStart || m_grid->RowSel() != MehrfachEnde)
        return;
    const QScopedValueRollback guard(m_committing, true);
    trapped(m_context.prompts, [this] {
        const QString text = m_grid->Text();
        spreadSelection(allRowsAreMeant());
        if (severalRowsSelected()) {
            SetzeSelectedZeilenGeaendert();
            MehrfachEnde = -1;
            writeSelection(text);
        }
    });
    m_grid->setRow(m_grid->Row());
}

} // namespace lingomat
