// The keys of the list: in the grid, and in the overlays that lie over its cells.

#include "CellOverlay.h"
#include "FlexGrid.h"
#include "Liste.h"
#include "Prompts.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace lingomat {

namespace {

/// Whether the key types a character. Control together with Alt is how some keyboards reach the third level.
bool types(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    const bool isCommand = modifiers.testFlag(Qt::MetaModifier) ||
                           modifiers.testFlag(Qt::ControlModifier) != modifiers.testFlag(Qt::AltModifier);
    return !isCommand && !event.text().isEmpty() && event.text().front().isPrint();
}

bool isPaste(const QKeyEvent& event) {
    return event.matches(QKeySequence::Paste);
}

bool isReturn(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

// In the grid.

void Liste::MSFlexGrid1_KeyDown(const QKeyEvent& event) {
    CtrlGedrueckt = isPaste(event);
}

bool Liste::keyPressInGrid(const QKeyEvent& event) {
    MSFlexGrid1_KeyDown(event);
    const bool hasPlainModifiers = !(event.modifiers() & ~Qt::KeypadModifier);
    if (types(event))
        return MSFlexGrid1_KeyPress(event.key(), event.text());
    if (isPaste(event) || (hasPlainModifiers && (isReturn(event.key()) || event.key() == Qt::Key_Escape)))
        return MSFlexGrid1_KeyPress(event.key(), QString());
    if (!hasPlainModifiers)
        return false;
    if (event.key() == Qt::Key_F2) {
        MSFlexGrid1_Click();
        return true;
    }
    return event.key() == Qt::Key_Backspace && backspaceInGrid(event);
}

/// Opens the cell and takes the last character away, as a text field would.
bool Liste::backspaceInGrid(const QKeyEvent& event) {
    if (!MSFlexGrid1_KeyPress(event.key(), QString()))
        return false;
    if (overlayText())
        m_overlay->field().backspace();
    return true;
}

/// What an input method writes over a closed cell opens it, and goes on being written there.
bool Liste::inputMethodInGrid(QInputMethodEvent& event) {
    CtrlGedrueckt = false;
    if (!cellCanBeEdited())
        return false;
    if (!isOverlay(editorOf(m_grid->Col())))
        return !event.commitString().isEmpty() && MSFlexGrid1_KeyPress(0, event.commitString());
    if (event.commitString().isEmpty() && event.preeditString().isEmpty())
        return false;
    openEditor(QString());
    if (overlayText())
        QCoreApplication::sendEvent(&m_overlay->field(), &event);
    return true;
}

bool Liste::MSFlexGrid_KeyPress_Standard(int key) {
    if (key == Qt::Key_Escape)
        m_overlay->hide();
    return key == Qt::Key_Escape || key == Qt::Key_Tab;
}

// In an overlay.

bool Liste::EditKeyCode(int key, Qt::KeyboardModifiers modifiers) {
    // With Alt, the arrows open the list of a box.
    if (modifiers & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier))
        return false;
    return MSFlexGridDoSonderzeichen(key);
}

bool Liste::MSFlexGridDoSonderzeichen(int key) {
    const auto giveGridTheFocus = [this] {
        m_grid->setFocus();
        MSFlexGrid1_GotFocus(); // in a window that is not active the focus stays away
    };
    switch (key) {
    case Qt::Key_Tab:
        giveGridTheFocus();
        stepColumn(1);
        return true;
    case Qt::Key_Backtab:
        giveGridTheFocus();
        stepColumn(-1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: giveGridTheFocus(); return true;
    case Qt::Key_Escape:
        m_overlay->hide();
        m_grid->setFocus();
        return true;
    case Qt::Key_Up:
        giveGridTheFocus();
        stepRow(-1);
        return true;
    case Qt::Key_Down:
        giveGridTheFocus();
        stepRow(1);
        return true;
    default: return false;
    }
}

/// To the next column that is to be seen.
void Liste::stepColumn(int step) {
    int column = m_grid->Col() + step;
    while (column >= m_grid->FixedCols() && column < m_grid->Cols() && m_grid->ColWidth(column) == 0)
        column += step;
    if (column < m_grid->FixedCols() || column >= m_grid->Cols()) {
        m_context.prompts.beep();
        return;
    }
    m_grid->setCol(column);
    m_grid->showCell();
}

void Liste::stepRow(int step) {
    const int row = m_grid->Row() + step;
    if (row >= m_grid->FixedRows() && row < m_grid->Rows())
        m_grid->setRow(row);
    m_grid->showCell();
    SetzeMarke();
}

} // namespace lingomat
