#include "AusdruckForm.h"

#include "FontHelp.h"
#include "TestContext.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

constexpr const char* FieldNames[] = {"txtPrefix", "txtMain", "txtSuffix", "txtComment"};

struct Expression : testing::Test {
    explicit Expression(const QString& language = u"En"_s) : context(language), form(context.prompts, pad) {}

    void show() {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    QLineEdit& field(const char* name) { return child<QLineEdit>(form, name); }
    void type(const char* name, const QString& text) {
        field(name).selectAll();
        QTest::keyClicks(&field(name), text);
    }
    void click(const char* name) { QTest::mouseClick(&child<QPushButton>(form, name), Qt::LeftButton); }
    QStringList fieldTexts() {
        QStringList texts;
        for (const char* name : FieldNames)
            texts << field(name).text();
        return texts;
    }

    TestContext context;
    FontHelp pad;
    AusdruckForm form;
};

struct GermanExpression : Expression {
    GermanExpression() : Expression(u"De"_s) {}
};

const QStringList fourEmpty{QString(), QString(), QString(), QString()};

} // namespace

TEST_F(Expression, OkHandsOverTheFourPartsWithoutBlanksAtTheirEnds) {
    show();
    type("txtPrefix", u" der "_s);
    type("txtMain", u"alte Hund"_s);
    type("txtSuffix", u" e"_s);
    type("txtComment", u"Tier "_s);
    click("cmdOK");
    EXPECT_EQ(form.parts(), (ExpressionParts{u"der"_s, u"alte Hund"_s, u"e"_s, u"Tier"_s}));
    EXPECT_TRUE(form.Bestaetigt);
    EXPECT_EQ(form.result(), QDialog::Accepted);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Expression, ACommentAloneCountsAsEntered) {
    show();
    type("txtComment", u"x"_s);
    click("cmdOK");
    EXPECT_TRUE(form.Bestaetigt);
    EXPECT_EQ(form.parts(), (ExpressionParts{{}, {}, {}, u"x"_s}));
}

TEST_F(Expression, OkOnEmptyFieldsCountsAsCancel) {
    show();
    click("cmdOK");
    EXPECT_FALSE(form.Bestaetigt);
    EXPECT_EQ(form.result(), QDialog::Rejected);
}

TEST_F(Expression, BlanksAloneCountAsEmpty) {
    show();
    for (const char* name : FieldNames)
        type(name, u"   "_s);
    click("cmdOK");
    EXPECT_FALSE(form.Bestaetigt);
}

TEST_F(Expression, ATabIsNoBlank) {
    show();
    field("txtMain").setText(u"\t"_s);
    click("cmdOK");
    EXPECT_TRUE(form.Bestaetigt);
}

TEST_F(Expression, CancelLeavesWhatTheLastOkLeft) {
    for (const bool byEscape : {false, true}) {
        show();
        type("txtMain", u"Hund"_s);
        click("cmdOK");
        show();
        type("txtMain", u"Katze"_s);
        if (byEscape)
            QTest::keyClick(&field("txtMain"), Qt::Key_Escape);
        else
            click("cmdCancel");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Bestaetigt);
        EXPECT_EQ(form.Main, u"Hund"_s);
    }
}

TEST_F(Expression, ClosingTheWindowIsCancel) {
    show();
    type("txtMain", u"Hund"_s);
    click("cmdOK");
    show();
    form.close();
    EXPECT_FALSE(form.Bestaetigt);
}

TEST_F(Expression, OpensCleanTheNextTime) {
    for (const char* button : {"cmdOK", "cmdCancel"}) {
        show();
        type("txtMain", u"Hund"_s);
        type("txtComment", u"Tier"_s);
        click(button);
        show();
        EXPECT_EQ(fieldTexts(), fourEmpty) << button;
        click("cmdCancel");
    }
}

TEST_F(Expression, TakesWhatItsCallerFillsIn) {
    form.fill({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    show();
    EXPECT_EQ(fieldTexts(), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    click("cmdOK");
    EXPECT_EQ(form.parts(), (ExpressionParts{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
}

TEST_F(Expression, StartsInTheMainPartEachTime) {
    show();
    EXPECT_TRUE(field("txtMain").hasFocus());
    field("txtSuffix").setFocus();
    click("cmdCancel");
    show();
    EXPECT_TRUE(field("txtMain").hasFocus());
}

TEST_F(Expression, KeepsTheCaretWhenTheUserComesBackFromThePad) {
    show();
    field("txtSuffix").setFocus();
    click("cmdFont");
    EXPECT_TRUE(pad.isVisible());
    EXPECT_FALSE(pad.isModal());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&pad));
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_TRUE(field("txtSuffix").hasFocus());
}

TEST_F(Expression, ReturnIsOk) {
    show();
    type("txtMain", u"Hund"_s);
    QTest::keyClick(&field("txtMain"), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(form.Bestaetigt);
}

TEST_F(Expression, CutsLongTextsWithABeep) {
    show();
    for (const char* name : FieldNames) {
        const int before = context.prompts.beeps();
        field(name).setText(QString(100, u'x'));
        EXPECT_EQ(context.prompts.beeps(), before) << name;
        QTest::keyClicks(&field(name), u"y"_s);
        EXPECT_EQ(context.prompts.beeps(), before + 1) << name;
        EXPECT_EQ(field(name).text(), QString(100, u'x')) << name;
    }
}

TEST_F(Expression, EndsARealModalRun) {
    ScreenPrompts screen;
    QMetaObject::invokeMethod(
        &form,
        [this] {
            EXPECT_TRUE(form.isModal());
            type("txtMain", u"Hund"_s);
            click("cmdOK");
        },
        Qt::QueuedConnection);
    EXPECT_EQ(screen.exec(form), QDialog::Accepted);
    EXPECT_TRUE(form.Bestaetigt);
}

TEST_F(Expression, Texts) {
    EXPECT_EQ(form.objectName(), u"AusdruckForm"_s);
    EXPECT_EQ(form.windowTitle(), u"Enter Vocabulary"_s);
    EXPECT_EQ(child<QLabel>(form, "lblPrefix").text(), u"Prefix"_s);
    EXPECT_EQ(child<QLabel>(form, "lblMain").text(), u"Main Part"_s);
    EXPECT_EQ(child<QLabel>(form, "lblSuffix").text(), u"Suffix"_s);
    EXPECT_EQ(child<QLabel>(form, "lblComment").text(), u"Comment"_s);
    EXPECT_EQ(child<QPushButton>(form, "cmdCancel").text(), u"Cancel"_s);
    EXPECT_EQ(child<QPushButton>(form, "cmdFont").text(), u"Special Characters..."_s);
    EXPECT_EQ(child<QPushButton>(form, "cmdFont").toolTip(), u"Opens the Special Characters window"_s);
}

TEST_F(GermanExpression, Texts) {
    EXPECT_EQ(child<QLabel>(form, "lblPrefix").text(), u"Präfix"_s);
    EXPECT_EQ(child<QLabel>(form, "lblMain").text(), u"Hauptteil"_s);
    EXPECT_EQ(child<QLabel>(form, "lblSuffix").text(), u"Suffix"_s);
    EXPECT_EQ(child<QLabel>(form, "lblComment").text(), u"Kommentar"_s);
}
