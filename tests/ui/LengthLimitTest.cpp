#include "LengthLimit.h"

#include "ScriptedPrompts.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

struct LengthLimit : testing::Test {
    LengthLimit() {
        limitLength(field, 5, prompts);
        box.setEditable(true);
        limitLength(box, 5, prompts);
    }

    ScriptedPrompts prompts;
    QLineEdit field;
    QComboBox box;
};

} // namespace

TEST_F(LengthLimit, LetsTheLongestTextPassInSilence) {
    QTest::keyClicks(&field, u"12345"_s);
    EXPECT_EQ(field.text(), u"12345"_s);
    EXPECT_EQ(prompts.beeps(), 0);
}

TEST_F(LengthLimit, CutsWhatIsTypedWithABeep) {
    QTest::keyClicks(&field, u"123456"_s);
    EXPECT_EQ(field.text(), u"12345"_s);
    EXPECT_EQ(prompts.beeps(), 1);
    EXPECT_EQ(field.cursorPosition(), 5);
}

TEST_F(LengthLimit, CutsWhatIsPastedWithOneBeep) {
    field.setText(u"abc"_s);
    field.setCursorPosition(1);
    QApplication::clipboard()->setText(u"0123456789"_s);
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), u"a0123"_s);
    EXPECT_EQ(prompts.beeps(), 1);
    EXPECT_EQ(field.cursorPosition(), 5);
}

TEST_F(LengthLimit, HoldsForAComboBox) {
    QTest::keyClicks(box.lineEdit(), u"1234567"_s);
    EXPECT_EQ(box.currentText(), u"12345"_s);
    EXPECT_EQ(prompts.beeps(), 2);
}

TEST_F(LengthLimit, KeepsACharacterOfTwoUnitsWhole) {
    field.setText(u"1234\U0001F600"_s);
    EXPECT_EQ(field.text(), u"1234"_s);
}
