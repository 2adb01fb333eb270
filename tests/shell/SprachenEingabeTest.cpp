#include "SprachenEingabe.h"

#include "ModalDriver.h"
#include "TestContext.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct Languages : testing::Test {
    explicit Languages(const QString& language = u"En"_s) : context(language), form(context.prompts) {}

    void show() {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    QLineEdit& box(const char* name) { return child<QLineEdit>(form, name); }
    void enter(const QString& first, const QString& second) {
        box("Sprache1").setText(first);
        box("Sprache2").setText(second);
    }
    void click(const char* name) { QTest::mouseClick(&child<QPushButton>(form, name), Qt::LeftButton); }
    void expectBadCharacter() {
        context.prompts.expectExclamation(u"Language must not contain this character!"_s);
    }
    void expectMissing() { context.prompts.expectExclamation(u"A language has to be specified!"_s); }

    TestContext context;
    SprachenEingabe form;
};

struct GermanLanguages : Languages {
    GermanLanguages() : Languages(u"De"_s) {}
};

TEST(LanguageName, HoldsLettersAndDigitsAlone) {
    const std::pair<QString, QString> table[] = {
        {u""_s, u""_s},
        {u"Deutsch"_s, u"Deutsch"_s},
        {u"Englisch2"_s, u"Englisch2"_s},
        {u"Français"_s, u"Français"_s},
        {u"Español¿¡"_s, u"Español¿¡"_s},
        {u"ÿÀß"_s, u"ÿÀß"_s},
        {u"Alt Spanisch"_s, u"AltSpanisch"_s},
        {u" Deutsch "_s, u"Deutsch"_s},
        {u"a=b@c"_s, u"abc"_s},
        {u"x\u00d7\u00f7y"_s, u"xy"_s},
        {u"日本語 Ελλάδα"_s, u""_s},
        {u"a-b_c.d;e'f\tg\nh"_s, u"abcdefgh"_s},
        {u"\U0001F600Emoji"_s, u"Emoji"_s},
    };
    for (const auto& [text, allowed] : table)
        EXPECT_EQ(allowedInLanguageName(text), allowed) << text.toStdString();
}

TEST_F(Languages, OkHandsOverTheTwoNames) {
    show();
    enter(u"Deutsch"_s, u"Español"_s);
    click("OK");
    EXPECT_EQ(form.Language1, u"Deutsch"_s);
    EXPECT_EQ(form.Language2, u"Español"_s);
    EXPECT_TRUE(form.LanguagesAccepted);
    EXPECT_FALSE(form.LanguagesCancelled);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.result(), QDialog::Accepted);
}

TEST_F(Languages, TheTwoNamesMayBeTheSame) {
    show();
    enter(u"Deutsch"_s, u"Deutsch"_s);
    click("OK");
    EXPECT_TRUE(form.LanguagesAccepted);
}

TEST_F(Languages, BothNamesAreNeeded) {
    const struct {
        QString first;
        QString second;
        const char* focus;
    } table[] = {{{}, {}, "Sprache1"}, {{}, u"Deutsch"_s, "Sprache1"}, {u"Deutsch"_s, {}, "Sprache2"}};
    show();
    for (const auto& row : table) {
        enter(row.first, row.second);
        child<QPushButton>(form, "OK").setFocus();
        expectMissing();
        click("OK");
        EXPECT_TRUE(form.isVisible());
        EXPECT_FALSE(form.LanguagesAccepted);
        EXPECT_FALSE(form.LanguagesCancelled);
        EXPECT_TRUE(box(row.focus).hasFocus()) << row.focus;
    }
    form.close();
}

TEST_F(Languages, EveryWayOutButOkIsCancel) {
    const std::function<void()> ways[] = {[this] { click("cmdCancel"); },
                                          [this] { QTest::keyClick(&form, Qt::Key_Escape); },
                                          [this] { form.close(); }};
    for (const auto& leave : ways) {
        show();
        enter(u"Deutsch"_s, u"Englisch"_s);
        leave();
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.LanguagesAccepted);
        EXPECT_TRUE(form.LanguagesCancelled);
        EXPECT_EQ(form.Language1, QString());
    }
}

TEST_F(Languages, EachShowingStartsAnew) {
    show();
    enter(u"Deutsch"_s, u"Englisch"_s);
    click("OK");
    show();
    EXPECT_FALSE(form.LanguagesAccepted) << "an answer counts once";
    EXPECT_TRUE(box("Sprache1").hasFocus());
    EXPECT_EQ(box("Sprache1").text(), QString());
    EXPECT_EQ(box("Sprache2").text(), QString());
    EXPECT_EQ(form.Language1, u"Deutsch"_s) << "that of the last OK";
    click("cmdCancel");
    EXPECT_TRUE(form.LanguagesCancelled);
    show();
    EXPECT_FALSE(form.LanguagesCancelled);
    form.close();
}

TEST_F(Languages, AForbiddenCharacterGoesAsItIsTyped) {
    show();
    for (const char* name : {"Sprache1", "Sprache2"}) {
        for (const QChar character : u" @=-;'\"/日"_s) {
            box(name).setText(u"Altdeutsch"_s);
            box(name).setFocus();
            box(name).setCursorPosition(3);
            expectBadCharacter();
            box(name).insert(character);
            EXPECT_EQ(box(name).text(), u"Altdeutsch"_s) << "after " << QString(character).toStdString();
            EXPECT_EQ(box(name).cursorPosition(), 3) << "the caret stays where one types";
            EXPECT_TRUE(box(name).hasFocus());
        }
    }
    form.close();
}

TEST_F(Languages, AllForbiddenCharactersOfAPastedTextGoWithOneMessage) {
    show();
    QApplication::clipboard()->setText(u"Lang1=Alt Deutsch@x"_s);
    expectBadCharacter();
    box("Sprache2").setFocus();
    box("Sprache2").paste();
    EXPECT_EQ(box("Sprache2").text(), u"Lang1AltDeutschx"_s);
    form.close();
}

TEST_F(Languages, LettersDigitsAndNothingPassWithoutAWord) {
    show();
    QTest::keyClicks(&box("Sprache1"), u"Englisch2"_s);
    box("Sprache1").setText(u"Français¿"_s);
    box("Sprache1").clear();
    EXPECT_EQ(box("Sprache1").text(), QString());
    form.close();
}

TEST_F(Languages, OnlyBlanksCannotBeEntered) {
    show();
    expectBadCharacter();
    QTest::keyClicks(&box("Sprache1"), u" "_s);
    box("Sprache2").setText(u"Deutsch"_s);
    expectMissing();
    click("OK");
    form.close();
}

TEST_F(Languages, ReturnIsOkAndTabGoesFromTopToBottom) {
    show();
    enter(u"Deutsch"_s, u"Englisch"_s);
    for (const char* name : {"Sprache1", "Sprache2", "OK", "cmdCancel"}) {
        EXPECT_TRUE(child<QWidget>(form, name).hasFocus()) << name;
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(box("Sprache1").hasFocus());
    QTest::keyClick(&box("Sprache1"), Qt::Key_Return);
    EXPECT_TRUE(form.LanguagesAccepted);
}

TEST_F(Languages, EndsARealModalRun) {
    ScreenPrompts screen;
    onNextModal<SprachenEingabe>([this](SprachenEingabe& shown) {
        EXPECT_EQ(&shown, &form);
        enter(u"Deutsch"_s, u"Englisch"_s);
        click("OK");
    });
    screen.exec(form);
    EXPECT_TRUE(form.LanguagesAccepted);
}

TEST_F(Languages, KeepsTheFocusWhereAMessageOnTheScreenFoundIt) {
    ScreenPrompts screen;
    SprachenEingabe real(screen);
    real.show();
    real.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&real));
    auto& second = child<QLineEdit>(real, "Sprache2");
    second.setFocus();
    second.setText(u"Alt"_s);
    onNextModal<QMessageBox>([](QMessageBox& message) { message.accept(); });
    second.insert(u" "_s);
    EXPECT_EQ(second.text(), u"Alt"_s);
    EXPECT_EQ(real.focusWidget(), &second);
    real.close();
}

TEST_F(Languages, Texts) {
    EXPECT_EQ(form.objectName(), u"SprachenEingabe"_s);
    EXPECT_EQ(form.windowTitle(), u"Please Enter Languages"_s);
    EXPECT_EQ(child<QLabel>(form, "lblText").text(),
              u"Please enter the two languages, that the database shall contain."_s);
    EXPECT_EQ(child<QLabel>(form, "lblSprache1").text(), u"Language 1"_s);
    EXPECT_EQ(child<QLabel>(form, "lblSprache2").text(), u"Language 2"_s);
    EXPECT_EQ(child<QPushButton>(form, "OK").text(), u"OK"_s);
    EXPECT_EQ(child<QPushButton>(form, "cmdCancel").text(), u"Cancel"_s);
}

TEST_F(GermanLanguages, Texts) {
    EXPECT_EQ(form.windowTitle(), u"Bitte Sprachen eingeben"_s);
    EXPECT_EQ(child<QLabel>(form, "lblText").text(),
              u"Bitte die beiden Sprachen eingeben, die die Datenbank enthalten soll."_s);
    EXPECT_EQ(child<QLabel>(form, "lblSprache1").text(), u"Sprache 1:"_s);
    EXPECT_EQ(child<QLabel>(form, "lblSprache2").text(), u"Sprache 2:"_s);
}

TEST_F(GermanLanguages, Messages) {
    show();
    context.prompts.expectExclamation(u"Sprache darf nicht dieses Zeichen enthalten!"_s);
    QTest::keyClicks(&box("Sprache1"), u"@"_s);
    context.prompts.expectExclamation(u"Es muß eine Sprache angegeben werden!"_s);
    click("OK");
    form.close();
}

} // namespace
} // namespace lingomat
