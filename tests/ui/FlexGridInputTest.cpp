#include "FlexGrid.h"
#include "QtPrinters.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// A grid of 100 rows and 5 columns on the screen; it notes what happens and where it stood then.
class GridInput : public testing::Test {
protected:
    GridInput() {
        grid.setCols(6);
        grid.setRows(101);
        for (int row = 0; row < grid.Rows(); ++row) {
            for (int col = 0; col < grid.Cols(); ++col)
                grid.setTextMatrix(row, col, cellText(row, col));
        }
        grid.resize(800, 400);
        grid.show();
        grid.setFocus();
        grid.flush();
        const auto noteAs = [this](const QString& name) {
            return [this, name] { events.append(name + u' ' + cellText(grid.Row(), grid.Col())); };
        };
        QObject::connect(&grid, &FlexGrid::LeaveCell, &grid, noteAs(u"leave"_s));
        QObject::connect(&grid, &FlexGrid::EnterCell, &grid, noteAs(u"enter"_s));
        QObject::connect(&grid, &FlexGrid::SelChange, &grid, noteAs(u"select"_s));
        QObject::connect(&grid, &FlexGrid::headerClicked, &grid, noteAs(u"header"_s));
    }

    static QString cellText(int row, int col) { return u"%1,%2"_s.arg(row).arg(col); }

    [[nodiscard]] QPoint middleOf(int row, int col) const {
        return grid.visualRect(grid.model()->index(row - grid.FixedRows(), col - grid.FixedCols())).center();
    }

    void click(int row, int col, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, modifiers, middleOf(row, col));
    }

    QStringList takeEvents() { return std::exchange(events, {}); }

    FlexGrid grid;
    QStringList events;
};

} // namespace

TEST_F(GridInput, ArrowsLeaveTheOldCellBeforeTheyEnterTheNew) {
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(takeEvents(), QStringList({u"leave 1,1"_s, u"enter 2,1"_s, u"select 2,1"_s}));
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(takeEvents(), QStringList({u"leave 2,1"_s, u"enter 2,2"_s, u"select 2,2"_s}));
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
    takeEvents();
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(takeEvents(), QStringList()) << "at the border nothing happens";
}

TEST_F(GridInput, HomeEndAndPagesMoveFar) {
    QTest::keyClick(&grid, Qt::Key_End);
    EXPECT_EQ(grid.Col(), 5);
    QTest::keyClick(&grid, Qt::Key_Home);
    EXPECT_EQ(grid.Col(), 1);
    QTest::keyClick(&grid, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid.Text(), cellText(100, 5));
    QTest::keyClick(&grid, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(grid.Text(), cellText(1, 1));
    QTest::keyClick(&grid, Qt::Key_PageDown);
    const int page = grid.Row() - 1;
    EXPECT_GT(page, 5);
    EXPECT_LT(page, 30);
    QTest::keyClick(&grid, Qt::Key_PageUp);
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridInput, KeysPassOverHiddenColumnsAndRows) {
    grid.setColWidth(2, 0);
    grid.setRowHeight(2, 0);
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Text(), cellText(3, 3));
}

TEST_F(GridInput, KeysSeeWhatCodeHasJustChanged) {
    grid.setRow(100);
    grid.AddItem(u"\tnew"_s);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 101);
    EXPECT_EQ(grid.Text(), u"new"_s);
    grid.setRows(50);
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(grid.Row(), 48);
}

TEST_F(GridInput, FromTheHeaderTheKeysGoIntoTheRows) {
    grid.setRow(0);
    grid.setCol(3);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Text(), cellText(1, 3));
}

TEST_F(GridInput, ShiftSpreadsTheSelectionFromTheCurrentCell) {
    QTest::keyClick(&grid, Qt::Key_Down);
    takeEvents();
    QTest::keyClick(&grid, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&grid, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&grid, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.RowSel(), 4);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.ColSel(), 2);
    EXPECT_EQ(takeEvents(), QStringList({u"select 2,1"_s, u"select 2,1"_s, u"select 2,1"_s}));
    EXPECT_EQ(grid.selectionModel()->selectedIndexes().size(), 6);
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(grid.RowSel(), 1);
    EXPECT_EQ(grid.ColSel(), 1);
}

TEST_F(GridInput, AClickMovesToItsCell) {
    QSignalSpy pressed(&grid, &FlexGrid::pressed);
    QSignalSpy clicked(&grid, &FlexGrid::clicked);
    click(5, 3);
    EXPECT_EQ(takeEvents(), QStringList({u"leave 1,1"_s, u"enter 5,3"_s, u"select 5,3"_s}));
    click(5, 3);
    EXPECT_EQ(takeEvents(), QStringList());
    EXPECT_EQ(pressed.size(), 2);
    EXPECT_EQ(clicked.size(), 2);
    click(8, 4, Qt::ShiftModifier);
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.RowSel(), 8);
    EXPECT_EQ(grid.ColSel(), 4);
    click(5, 3);
    EXPECT_EQ(grid.RowSel(), 5) << "a plain click ends the selection";
    EXPECT_EQ(takeEvents(), QStringList({u"select 5,3"_s, u"select 5,3"_s}));
}

TEST_F(GridInput, ADragSpreadsTheSelection) {
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(2, 2));
    QTest::mouseMove(grid.viewport(), middleOf(4, 3));
    QTest::mouseMove(grid.viewport(), middleOf(6, 3));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(6, 3));
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.RowSel(), 6);
    EXPECT_EQ(grid.ColSel(), 3);
}

TEST_F(GridInput, ADragBeyondTheEdgeScrollsRowByRow) {
    grid.setTopRow(40);
    grid.flush();
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(40, 2));
    QTest::mouseMove(grid.viewport(), QPoint(100, -5));
    QTest::mouseMove(grid.viewport(), QPoint(101, -5));
    EXPECT_EQ(grid.RowSel(), 38);
    EXPECT_EQ(grid.TopRow(), 38);
    const int below = grid.viewport()->height() + 5;
    QTest::mouseMove(grid.viewport(), QPoint(100, below));
    EXPECT_EQ(grid.RowSel(), 39);
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, QPoint(100, below));
    EXPECT_EQ(grid.Row(), 40);
}

TEST_F(GridInput, TheRightButtonMovesNothing) {
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, middleOf(5, 3));
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(takeEvents(), QStringList());
    EXPECT_EQ(grid.MouseRow(), 5);
}

TEST_F(GridInput, TheWheelScrolls) {
    QSignalSpy scroll(&grid, &FlexGrid::Scroll);
    const QPointF place = grid.viewport()->rect().center();
    QWheelEvent wheel(place, grid.viewport()->mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(grid.viewport(), &wheel);
    EXPECT_EQ(scroll.size(), 1);
    EXPECT_GT(grid.TopRow(), 1);
}

TEST_F(GridInput, AListenerMayTakeRowsAwayUnderTheClick) {
    QObject::connect(&grid, &FlexGrid::LeaveCell, &grid, [this] { grid.setRows(3); });
    click(9, 2);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Text(), cellText(2, 2));
}

TEST_F(GridInput, AHeaderClickSelectsItsColumnFirst) {
    grid.setRow(4);
    const QHeaderView* heads = grid.horizontalHeader();
    const QPoint place(heads->sectionViewportPosition(2) + 20, heads->height() / 2);
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(takeEvents(), QStringList({u"leave 4,1"_s, u"enter 4,3"_s, u"select 4,3"_s, u"header 4,3"_s}));
    EXPECT_EQ(grid.MouseRow(), 0);
    EXPECT_EQ(grid.MouseCol(), 3);
}

TEST_F(GridInput, AClickInTheCornerIsAHeaderClickOnColumnZero) {
    QTest::mouseClick(grid.childAt(5, 5), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(takeEvents(), QStringList({u"leave 1,1"_s, u"enter 1,0"_s, u"select 1,0"_s, u"header 1,0"_s}));
}

TEST_F(GridInput, APressInTheMarginMovesToItsRow) {
    grid.setCol(2);
    QSignalSpy pressed(&grid, &FlexGrid::pressed);
    const QHeaderView* margin = grid.verticalHeader();
    const QPoint place(3, margin->sectionViewportPosition(6) + 5);
    QTest::mouseClick(margin->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(takeEvents(), QStringList({u"leave 1,2"_s, u"enter 7,2"_s, u"select 7,2"_s}));
    EXPECT_EQ(pressed.size(), 1);
    EXPECT_EQ(grid.MouseCol(), 0);
    EXPECT_EQ(grid.MouseRow(), 7);
}

TEST_F(GridInput, TheMousePlaceIsKnownWhereverItIs) {
    QSignalSpy moved(&grid, &FlexGrid::mouseMoved);
    QTest::mouseMove(grid.viewport(), middleOf(3, 2));
    EXPECT_EQ(grid.MouseRow(), 3);
    EXPECT_EQ(grid.MouseCol(), 2);
    QTest::mouseMove(grid.viewport(), QPoint(grid.viewport()->width() - 2, middleOf(4, 1).y()));
    EXPECT_EQ(grid.MouseRow(), 4);
    EXPECT_EQ(grid.MouseCol(), 5) << "right of all columns";
    EXPECT_EQ(moved.size(), 2);
}

TEST_F(GridInput, OnlyTheUserScrolls) {
    QSignalSpy scroll(&grid, &FlexGrid::Scroll);
    grid.setTopRow(40);
    grid.flush();
    EXPECT_EQ(grid.TopRow(), 40);
    EXPECT_EQ(scroll.size(), 0);
    grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(scroll.size(), 1);
    EXPECT_GT(grid.TopRow(), 40);
    grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    EXPECT_EQ(scroll.size(), 2);
    grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    EXPECT_EQ(scroll.size(), 2) << "nothing to scroll";
    grid.setTopRow(10);
    grid.flush();
    EXPECT_EQ(scroll.size(), 2);
    QTest::keyClick(&grid, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(scroll.size(), 3) << "keys that run out of view scroll as well";
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(scroll.size(), 3);
}

TEST_F(GridInput, ScrollingEndsAtOnceWhereNoButtonIsDown) {
    QSignalSpy end(&grid, &FlexGrid::ScrollEnd);
    grid.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(end.size(), 1);
}

TEST_F(GridInput, ScrollingByTheBarEndsWhenTheButtonIsUp) {
    QSignalSpy scroll(&grid, &FlexGrid::Scroll);
    QSignalSpy end(&grid, &FlexGrid::ScrollEnd);
    QScrollBar& bar = *grid.verticalScrollBar();
    const QPoint belowTheSlider(bar.width() / 2, bar.height() * 3 / 4);
    QTest::mousePress(&bar, Qt::LeftButton, {}, belowTheSlider);
    EXPECT_EQ(scroll.size(), 1);
    EXPECT_EQ(end.size(), 0);
    EXPECT_FALSE(grid.hasFocus());
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, belowTheSlider);
    QApplication::processEvents();
    EXPECT_EQ(end.size(), 1);
    EXPECT_EQ(grid.window()->focusWidget(), &grid);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(0, -50));
    QApplication::processEvents();
    EXPECT_EQ(end.size(), 1) << "the view has not moved";
}

TEST_F(GridInput, AClickThatScrollsTheViewIsAClickAllTheSame) {
    const int cut = grid.rowAt(200);
    const int shown = grid.rowViewportPosition(cut) + grid.rowHeight(cut) / 2; // half of it
    grid.resize(grid.width(), grid.height() + shown - grid.viewport()->height());
    grid.flush();
    QSignalSpy clicked(&grid, &FlexGrid::clicked);
    const QPoint place(middleOf(3, 1).x(), grid.rowViewportPosition(cut) + 3);
    ASSERT_EQ(grid.rowAt(place.y()), cut);
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, place);
    ASSERT_NE(grid.rowAt(place.y()), cut) << "the view has moved under the mouse";
    QTest::mouseMove(grid.viewport(), place + QPoint(1, 0));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, place + QPoint(1, 0));
    EXPECT_EQ(clicked.size(), 1);
    EXPECT_EQ(grid.Row(), cut + 1);
    EXPECT_EQ(grid.RowSel(), cut + 1);
}

TEST_F(GridInput, KeysScrollTheRowIntoViewFromAColumnWithoutWidth) {
    grid.setColWidth(1, 0);
    grid.setRow(1);
    grid.setCol(1);
    grid.flush();
    for (int step = 0; step < 60; ++step)
        QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 61);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_TRUE(grid.viewport()->rect().intersects(
        grid.visualRect(grid.model()->index(61 - grid.FixedRows(), 2 - grid.FixedCols()))));
}

TEST_F(GridInput, ADragIsNoClick) {
    QSignalSpy clicked(&grid, &FlexGrid::clicked);
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(2, 2));
    QTest::mouseMove(grid.viewport(), middleOf(4, 2));
    QTest::mouseMove(grid.viewport(), middleOf(2, 2));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(2, 2));
    EXPECT_EQ(clicked.size(), 0);
}

TEST_F(GridInput, InputMethodsAreForThoseWhoAskForThem) {
    EXPECT_FALSE(grid.testAttribute(Qt::WA_InputMethodEnabled));
    grid.setTakesInputMethods(true);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_TRUE(grid.testAttribute(Qt::WA_InputMethodEnabled));
    grid.clearFocus();
    grid.setFocus();
    EXPECT_TRUE(grid.testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(GridInput, TypingMovesNothing) {
    QTest::keyClicks(&grid, u"5,1"_s);
    QInputMethodEvent composed;
    composed.setCommitString(u"5,1"_s);
    QApplication::sendEvent(&grid, &composed);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(takeEvents(), QStringList());
}

TEST_F(GridInput, TheCurrentCellCanBeCopied) {
    click(5, 3);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), cellText(5, 3));
}

TEST_F(GridInput, TheUserDragsColumnBordersWhereAllowed) {
    QHeaderView* heads = grid.horizontalHeader();
    const int before = grid.ColWidth(1);
    const auto drag = [heads](int by) {
        const QPoint border(heads->sectionViewportPosition(0) + heads->sectionSize(0) - 1,
                            heads->height() / 2);
        QTest::mousePress(heads->viewport(), Qt::LeftButton, {}, border);
        QTest::mouseMove(heads->viewport(), border + QPoint(by, 0));
        QTest::mouseRelease(heads->viewport(), Qt::LeftButton, {}, border + QPoint(by, 0));
    };
    EXPECT_TRUE(grid.AllowUserResizing());
    drag(30);
    EXPECT_EQ(grid.ColWidth(1), before + 30);
    grid.setAllowUserResizing(false);
    EXPECT_FALSE(grid.AllowUserResizing());
    drag(30);
    EXPECT_EQ(grid.ColWidth(1), before + 30);
    grid.AddItem({});
    grid.flush();
    EXPECT_EQ(heads->sectionSize(0), before + 30) << "what the user set stays";
}

TEST(FlexGridRows, TheUserDragsRowBordersOfAGridWithoutAMargin) {
    FlexGrid grid;
    grid.setFixedCols(0);
    grid.setFixedRows(0);
    grid.setCols(1);
    grid.setRows(4);
    grid.setAllowUserResizingRows(true);
    grid.resize(300, 300);
    grid.show();
    grid.flush();
    const int before = grid.RowHeight(1);
    const QPoint border(50, grid.rowViewportPosition(1) + grid.rowHeight(1));
    QTest::mouseMove(grid.viewport(), border);
    EXPECT_EQ(grid.viewport()->cursor().shape(), Qt::SplitVCursor);
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, border);
    QTest::mouseMove(grid.viewport(), border + QPoint(0, 40));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, border + QPoint(0, 40));
    EXPECT_EQ(grid.RowHeight(1), before + 40);
    EXPECT_EQ(grid.Row(), 1) << "dragging selects nothing";
    QTest::mouseMove(grid.viewport(), QPoint(50, grid.rowViewportPosition(3) + 9));
    EXPECT_NE(grid.viewport()->cursor().shape(), Qt::SplitVCursor);
}

TEST(FlexGridFocus, TabLeavesTheGrid) {
    QWidget form;
    auto* layout = new QVBoxLayout(&form);
    auto* grid = new FlexGrid;
    auto* next = new QLineEdit;
    layout->addWidget(grid);
    layout->addWidget(next);
    form.show();
    form.activateWindow();
    grid->setFocus();
    QApplication::setActiveWindow(&form);
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
    EXPECT_EQ(grid->Col(), 1);
}

TEST(FlexGridFocus, KeysItHasNoUseForReachTheForm) {
    class Form : public QWidget {
    public:
        QList<int> keys;

    protected:
        void keyPressEvent(QKeyEvent* event) override {
            if (event->key() != Qt::Key_Alt && event->key() != Qt::Key_Control)
                keys.append(event->key());
        }
    };
    Form form;
    FlexGrid grid(&form);
    form.show();
    for (const auto key : {Qt::Key_Escape, Qt::Key_F1, Qt::Key_Return, Qt::Key_A})
        QTest::keyClick(&grid, key);
    QTest::keyClick(&grid, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(&grid, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.keys,
              QList<int>({Qt::Key_Escape, Qt::Key_F1, Qt::Key_Return, Qt::Key_A, Qt::Key_Down, Qt::Key_A}));
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.RowSel(), 1);
}

} // namespace lingomat
