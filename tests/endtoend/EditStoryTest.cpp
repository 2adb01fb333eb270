// Editing in the list, seen from the rest of the program: what the list asks for comes up, and what is
// entered there arrives everywhere.

#include "TestProgram.h"

#include "FlexGrid.h"
#include "LstFkt.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class EditStory : public testing::TestWithParam<QString> {
protected:
    EditStory() : program(GetParam()) {
        program.startWithDatabase();
        program.click("Command1");
        child<QPushButton>(program.app().form2(), "Command4").click();
        program.app().form1().Form_Activate();
        program.click("Grid");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&list()));
        grid().setRow(2);
        grid().setFocus();
    }

    [[nodiscard]] Liste& list() { return program.app().liste(); }
    [[nodiscard]] FlexGrid& grid() { return list().MSFlexGrid1(); }
    [[nodiscard]] QString cell(int column) { return grid().TextMatrix(2, column); }

    TestProgram program;
};

INSTANTIATE_TEST_SUITE_P(Languages, EditStory, testing::Values(u"En"_s, u"De"_s));

} // namespace

TEST_P(EditStory, AKeyOnAnExpressionOpensItsEditorAndArrivesBehindTheMainPart) {
    const QString main = cell(Liste::ColHaupt2);
    grid().setCol(Liste::ColSprache2);
    program.prompts.expectDialog("frmVokabelEingabe", [&main](QDialog& editor) {
        EXPECT_EQ(child<QLineEdit>(editor, "txtMain").text(), main + u'x');
        EXPECT_EQ(child<QLineEdit>(editor, "txtMain").cursorPosition(), main.size() + 1);
        child<QLineEdit>(editor, "txtPrefix").setText(u"un"_s);
        QTest::keyClick(&child<QLineEdit>(editor, "txtMain"), Qt::Key_Return);
    });
    QTest::keyClicks(&grid(), u"x"_s);
    EXPECT_EQ(cell(Liste::ColSprache2), u"un "_s + main + u'x');
    EXPECT_EQ(cell(Liste::ColPrefix2), u"un"_s);
    EXPECT_EQ(cell(Liste::ColHaupt2), main + u'x');
    EXPECT_EQ(list().AnzahlGeaendert, 1);
}

TEST_P(EditStory, CancelledEditorChangesNothing) {
    const QString whole = cell(Liste::ColSprache1);
    grid().setCol(Liste::ColSprache1);
    program.prompts.expectDialog("frmVokabelEingabe", [](QDialog& editor) {
        QTest::keyClick(&child<QLineEdit>(editor, "txtMain"), Qt::Key_Escape);
    });
    QTest::keyClicks(&grid(), u"x"_s);
    EXPECT_EQ(cell(Liste::ColSprache1), whole);
    EXPECT_EQ(list().AnzahlGeaendert, 0);
}

TEST_P(EditStory, NewValuesTurnUpInTheSelectionForm) {
    grid().setTextMatrix(2, Liste::ColQuelle, QString());
    grid().setCol(Liste::ColQuelle);
    QTest::keyClicks(&grid(), u"B"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"ook"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(cell(Liste::ColQuelle), u"Book"_s);
    grid().setCol(Liste::ColBereich);
    program.prompts.expectDialog("AddListBox", [](QDialog& dialog) {
        child<QLineEdit>(dialog, "txtSelected").setText(u"harbour"_s);
        child<QPushButton>(dialog, "Add").click();
        child<QPushButton>(dialog, "OK").click();
    });
    QTest::keyClicks(&grid(), u"x"_s);
    const Form2& form2 = program.app().form2();
    EXPECT_EQ(listItems(child<QListWidget>(form2, "lstQuelleLinks")).count(u"Book"_s), 1);
    EXPECT_EQ(listItems(child<QListWidget>(form2, "lstBereichLinks")).count(u"harbour"_s), 1);
}

} // namespace lingomat
