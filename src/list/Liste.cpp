#include "Liste.h"

#include "CellOverlay.h"
#include "ErrorTrap.h"
#include "FlexGrid.h"
#include "SharedState.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace lingomat {

Liste::Liste(FormContext& context, QWidget* parent) : QMainWindow(parent), m_context(context) {
    buildWidgets();
    buildMenus();
    connectEvents();
}

Liste::~Liste() = default;

void Liste::connectEvents() {
    connectCommands();
    connect(m_grid, &FlexGrid::headerClicked, this, &Liste::headerClick);
    // The mark goes where the user goes: a key enters another cell, a click may fall on the current one.
    connect(m_grid, &FlexGrid::EnterCell, this, [this] {
        if (m_grid->Row() != MarkierteZeile)
            SetzeMarke();
    });
    connect(m_grid, &FlexGrid::pressed, this, [this] { SetzeMarke(); });
    connectEditing();
    m_grid->installEventFilter(this);
}

void Liste::Form_Load() {
    Q_EMIT loadProgress(65);

    setFirstWidths();
    m_grid->setColAlignment(ColMarke, 1);
    SaveColWidths();
    m_context.columns.load(m_context.settings);
    HideColsAccordingToOptions();
    Q_EMIT loadProgress(68);

    m_grid->setRowHeight(1, 0);
    m_grid->setRow(0);
    for (int column = ColSchluessel; column < m_grid->Cols(); ++column)
        m_grid->setColAlignment(column, 0);
    m_overlay->clear();
    Q_EMIT loadProgress(70);

    GetProperties();
    Q_EMIT loadProgress(75);
    nameSortMenus();
    Q_EMIT loadProgress(77);

    initialisiereListe();
    Q_EMIT loadProgress(78);

    SetUserInterfaceProperties();
}

void Liste::Form_Activate() {
    SortKlick = false;
    // The Trainer moves the current row: what is marked has to be what the commands work on.
    if (MarkierteZeile > 0 && MarkierteZeile != m_grid->Row())
        SetzeMarke();
    ConditionToUI();
}

void Liste::SetzeStatus() {
    const int rows = m_grid->Rows();
    setWindowTitle(listTitle(rows, rows < 2 ? 0 : m_grid->RowHeight(1)));
}

int Liste::countRows() const {
    const int rows = m_grid->Rows();
    return lingomat::countRows(rows, rows < 2 ? 0 : m_grid->RowHeight(1));
}

qint16 Liste::Fgi(int row, int column) const {
    return dao::toInteger16(qint64{column} + qint64{m_grid->Cols()} * row);
}

bool Liste::event(QEvent* event) {
    if (event->type() == QEvent::Close)
        commitOverlay();
    const bool handled = QMainWindow::event(event);
    switch (event->type()) {
    case QEvent::WindowActivate: Form_Activate(); break;
    case QEvent::WindowDeactivate:
    case QEvent::Hide: emergencyCommit(); break;
    default: break;
    }
    return handled;
}

bool Liste::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_grid && gridEvent(*event))
        return true;
    if (watched == m_grid->viewport() && event->type() == QEvent::MouseButtonRelease)
        SetMehrfachParameter();
    return QMainWindow::eventFilter(watched, event);
}

/// Whether the grid is not to see the event any more.
bool Liste::gridEvent(QEvent& event) {
    switch (event.type()) {
    case QEvent::FocusIn: MSFlexGrid1_GotFocus(); return false;
    case QEvent::KeyPress: return keyPressInGrid(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease: SetMehrfachParameter(); return false;
    case QEvent::InputMethod: return inputMethodInGrid(static_cast<QInputMethodEvent&>(event));
    default: return false;
    }
}

} // namespace lingomat
