#include "EditBench.h"

#include "Globals.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace lingomat {

EditBench::EditBench(const QString& language) : StoredList(language) {
    QObject::connect(&list, &Liste::expressionEditorRequested, &list,
                     [this](const ExpressionParts& parts, const QString& typed, const QRect& cell) {
                         editors.append({parts, typed, cell});
                     });
    QObject::connect(&list, &Liste::valueEntered, &list,
                     [this](const QString& text, const QString& kind) { values << kind + u": "_s + text; });
    fill({u"one"_s, u"two"_s, u"three"_s, u"four"_s, u"five"_s});
    list.resize(1700, 500);
    list.show();
    activate();
    grid.flush();
    grid.setFocus();
}

void EditBench::go(int row, int column) {
    grid.setRow(row);
    grid.setCol(column);
    grid.setFocus();
    grid.flush();
}

void EditBench::click(int row, int column, Qt::KeyboardModifiers modifiers) {
    grid.flush();
    const QPoint place =
        grid.visualRect(grid.model()->index(row - grid.FixedRows(), column - grid.FixedCols())).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, modifiers, place);
}

void EditBench::drag(int from, int to, int column) {
    grid.flush();
    const auto middleOf = [&](int row) {
        return grid.visualRect(grid.model()->index(row - grid.FixedRows(), column - grid.FixedCols()))
            .center();
    };
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middleOf(from));
    QTest::mouseMove(grid.viewport(), middleOf((from + to) / 2));
    QTest::mouseMove(grid.viewport(), middleOf(to));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middleOf(to));
}

void EditBench::type(const QString& text) {
    for (const QChar character : text) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_unknown, {}, QString(character));
        QApplication::sendEvent(QApplication::focusWidget(), &down);
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_unknown, {}, QString(character));
        QApplication::sendEvent(QApplication::focusWidget(), &up);
    }
}

void EditBench::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyPress(QApplication::focusWidget(), key, modifiers);
    QTest::keyRelease(QApplication::focusWidget(), key, modifiers);
}

void EditBench::paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void EditBench::wheel(QWidget& over, int notches) {
    const QPointF place = over.rect().center();
    QWheelEvent event(place, over.mapToGlobal(place), {}, QPoint(0, notches * 120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &event);
}

void EditBench::deactivate() {
    QApplication::setActiveWindow(nullptr);
}

void EditBench::activate() {
    QApplication::setActiveWindow(&list);
}

QWidget* EditBench::overlay() {
    QWidget* found = nullptr;
    for (QWidget* control : std::initializer_list<QWidget*>{&wortartBox(), &quelleBox(), &txtEdit()}) {
        if (!control->isVisible())
            continue;
        EXPECT_EQ(found, nullptr) << "more than one overlay";
        found = control;
    }
    return found;
}

QString EditBench::overlayText() {
    QWidget* control = overlay();
    if (!control)
        return u"(none)"_s;
    const auto* box = qobject_cast<QComboBox*>(control);
    return box ? box->currentText() : qobject_cast<QLineEdit*>(control)->text();
}

QRect EditBench::cellPlace() {
    const QRect cell(grid.CellLeft(), grid.CellTop(), grid.CellWidth(), grid.CellHeight());
    const QRect inView = cell.intersected(grid.viewport()->geometry());
    return {grid.mapTo(&list, inView.topLeft()), inView.size()};
}

QRect EditBench::overlayPlace() {
    QWidget* control = overlay();
    return control ? QRect(control->mapTo(&list, QPoint()), control->size()) : QRect();
}

QStringList EditBench::column(int column) {
    QStringList texts;
    for (int row = 1; row < grid.Rows(); ++row)
        texts << cell(row, column);
    return texts;
}

void EditBench::expectQuestion(bool yes) {
    context.prompts.expectYesNo(uiText(u"Änderungen für alle selektierten Zellen vornehmen?"_s,
                                       u"Shall the changes be applied to all selected rows?"_s),
                                yes);
}

QStringList EditBench::savedRows() {
    save();
    return stored("SELECT Lang1_Main FROM Vokabular WHERE Aenderungsdatum = '20020301' ORDER BY ID");
}

} // namespace lingomat
