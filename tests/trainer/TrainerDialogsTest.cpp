// The windows of a self-test: the one for the answer, and those that ask for a verdict.

#include "ConfirmDlg.h"
#include "ConfirmForm.h"
#include "EqualCharacters.h"
#include "InputFenster.h"
#include "TypingBench.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(AnswerWindows, FiftyOfThemFlowByTheKeyboardAlone) {
    TrainingBench bench;
    bench.openFileWith(50);
    bench.trainer.show();
    bench.trainer.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.trainer));
    bench.beginTyping();
    for (int entry = 1; entry <= 50; ++entry) {
        bench.context.prompts.expectDialog("InputFenster", [entry](QDialog& form) {
            ASSERT_TRUE(form.focusWidget());
            QTest::keyClicks(form.focusWidget(), u"word %1"_s.arg(entry));
            QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        });
        QTest::keyClick(bench.trainer.focusWidget(), Qt::Key_Return);
        ASSERT_TRUE(bench.saysRight()) << entry;
    }
    EXPECT_EQ(bench.trainer.AnzahlRichtig, 50);
    EXPECT_EQ(bench.stored(50), u"2");
}

TEST(AnswerWindows, TheBoxStandsExactlyOverTheSolution) {
    TrainingBench bench;
    bench.openFileWith(1);
    bench.trainer.resize(720, 480);
    bench.trainer.move(30, 30);
    bench.trainer.show();
    QApplication::processEvents();
    bench.beginTyping();
    bench.context.prompts.expectDialog("InputFenster", [&bench](QDialog& form) {
        const auto& box = child<QLineEdit>(form, "Text1");
        const FlexGrid& grid = bench.grid;
        const int top = 2 * grid.RowHeight(0) + grid.RowHeight(1);
        EXPECT_EQ(box.mapToGlobal(QPoint(0, 0)), grid.viewport()->mapToGlobal(QPoint(0, top)));
        EXPECT_EQ(box.size(), QSize(grid.viewport()->width(), grid.RowHeight(3)));
        form.close();
    });
    bench.step();
}

TEST(AnswerWindows, TheVerdictIsToldByColourAndByASign) {
    TrainingBench bench;
    bench.openFileWith(2);
    bench.trainer.show();
    bench.beginTyping();
    bench.type(u"word 1"_s);
    const auto colours = [&bench](const char* name) {
        auto& box = child<QLabel>(bench.trainer, name);
        const QImage picture = box.grab().toImage();
        QSet<QRgb> found;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.height(); ++x) // the sign stands at the left, in a square
                found += picture.pixel(x, y);
        EXPECT_LE(box.sizeHint().height(), box.height() + 4);
        return found;
    };
    EXPECT_EQ(child<QLabel>(bench.trainer, "Richtig").text(), u"OK");
    QSet<QRgb> right = colours("Richtig");
    EXPECT_TRUE(right.contains(qRgb(0, 255, 0)));
    EXPECT_TRUE(right.contains(qRgb(0, 0, 0)));
    bench.type(u"wrong"_s);
    QSet<QRgb> wrong = colours("NichtWort");
    EXPECT_TRUE(wrong.contains(qRgb(255, 0, 0)));
    EXPECT_TRUE(wrong.contains(qRgb(0, 0, 0)));
    const auto& box = child<QLabel>(bench.trainer, "NichtWort");
    EXPECT_EQ(box.x(), 0);
    EXPECT_GE(box.width(), box.sizeHint().width()) << "all of a short answer is seen";
    EXPECT_GT(bench.button("Suche").x(), box.x() + box.width());
}
