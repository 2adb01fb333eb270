// The window that tells what a wrong answer could have meant.

#include "Bedeutung.h"
#include "FlexGrid.h"
#include "TestContext.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(Bedeutung, TextsInBothLanguages) {
    struct Row {
        QString language, title, label;
    };
    for (const Row& row : {Row{u"En"_s, u"Possible Meanings"_s, u"Possibly confused with:"_s},
                           Row{u"De"_s, u"Mögliche Bedeutung"_s, u"Möglicherweise verwechselt mit:"_s}}) {
        const InterfaceLanguage language(row.language);
        Bedeutung form(u"English"_s, u"German"_s);
        EXPECT_EQ(form.windowTitle(), row.title);
        EXPECT_EQ(child<QLabel>(form, "Label1").text(), row.label);
        EXPECT_EQ(form.MSFlexGrid1().TextMatrix(0, 0), u"English");
        EXPECT_EQ(form.MSFlexGrid1().TextMatrix(0, 1), u"German");
    }
}

TEST(Bedeutung, ARowIsAddedOnlyWhereItIsMissing) {
    Bedeutung form(u"English"_s, u"German"_s);
    FlexGrid& grid = form.MSFlexGrid1();
    EXPECT_EQ(grid.Rows(), 1);
    form.ExtendRow(0);
    EXPECT_EQ(grid.Rows(), 1);
    form.ExtendRow(1);
    form.ExtendRow(1);
    EXPECT_EQ(grid.Rows(), 2);
    form.ExtendRow(7);
    EXPECT_EQ(grid.Rows(), 3) << "one row, however far off";
}

TEST(Bedeutung, TheBestMatchStandsOutAndTheFocusIsInTheTextBox) {
    Bedeutung form(u"English"_s, u"German"_s);
    FlexGrid& grid = form.MSFlexGrid1();
    for (qint16 row = 1; row <= 2; ++row)
        form.ExtendRow(row);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_TRUE(child<QLineEdit>(form, "Text1").hasFocus());
    EXPECT_NEAR(grid.ColWidth(0), grid.ColWidth(1), 1);
    EXPECT_EQ(grid.ColWidth(2), 0);
    for (int row = 1; row <= 2; ++row) {
        for (int column = 0; column <= 1; ++column) {
            grid.setRow(row);
            grid.setCol(column);
            EXPECT_EQ(grid.CellFont().bold(), row == 1);
        }
    }
}

TEST(Bedeutung, EnterAndEscapeCloseItFromEveryControl) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        for (const char* control : {"Text1", "MSFlexGrid1", "OK"}) {
            Bedeutung form(u"English"_s, u"German"_s);
            form.show();
            QTest::keyClick(&child<QWidget>(form, control), key);
            EXPECT_FALSE(form.isVisible()) << control;
        }
    }
    Bedeutung form(u"English"_s, u"German"_s);
    form.show();
    child<QPushButton>(form, "OK").click();
    EXPECT_FALSE(form.isVisible());
}
