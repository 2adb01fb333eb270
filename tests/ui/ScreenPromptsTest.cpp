#include "Globals.h"
#include "ModalDriver.h"
#include "TestContext.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

void pressOnNextBox(Qt::Key key) {
    onNextModal<QMessageBox>([key](QMessageBox& box) { QTest::keyClick(&box, key); });
}

} // namespace

TEST(ScreenPrompts, EnterTakesTheDefaultButton) {
    const InterfaceLanguage language(u"En"_s);
    ScreenPrompts prompts;
    pressOnNextBox(Qt::Key_Return);
    EXPECT_FALSE(prompts.yesNo(nullptr, u"Really?"_s));

    pressOnNextBox(Qt::Key_Return);
    EXPECT_EQ(prompts.message(nullptr, {.text = u"Really?"_s,
                                        .buttons = QMessageBox::Yes | QMessageBox::No,
                                        .defaultButton = QMessageBox::Yes}),
              QMessageBox::Yes);
}

TEST(ScreenPrompts, EscapeMeansNo) {
    ScreenPrompts prompts;
    pressOnNextBox(Qt::Key_Escape);
    EXPECT_EQ(prompts.message(nullptr, {.text = u"Really?"_s,
                                        .buttons = QMessageBox::Yes | QMessageBox::No,
                                        .defaultButton = QMessageBox::Yes}),
              QMessageBox::No);
    pressOnNextBox(Qt::Key_Escape);
    prompts.critical(nullptr, u"Too bad."_s);
}

TEST(ScreenPrompts, ABoxShowsItsTextAsItIs) {
    const InterfaceLanguage language(u"En"_s);
    ScreenPrompts prompts;
    onNextModal<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), u"Database:\n<none> <b>"_s);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.windowTitle(), ProductName());
        box.reject();
    });
    prompts.critical(nullptr, u"Database:\r<none> <b>"_s);
}

TEST(ScreenPrompts, ButtonsSpeakTheInterfaceLanguage) {
    struct Case {
        QString language;
        QString yes;
        QString no;
    };
    for (const Case& c : {Case{u"En"_s, u"&Yes"_s, u"&No"_s}, Case{u"De"_s, u"&Ja"_s, u"&Nein"_s}}) {
        const InterfaceLanguage language(c.language);
        ScreenPrompts prompts;
        onNextModal<QMessageBox>([&c](QMessageBox& box) {
            EXPECT_EQ(box.button(QMessageBox::Yes)->text(), c.yes);
            EXPECT_EQ(box.button(QMessageBox::No)->text(), c.no);
            box.button(QMessageBox::Yes)->click();
        });
        EXPECT_TRUE(prompts.yesNo(nullptr, u"?"_s));
    }
}

TEST(ScreenPrompts, TheWaitCursorRestsWhileABoxIsUp) {
    ScreenPrompts prompts;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    onNextModal<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        box.accept();
    });
    prompts.information(nullptr, u"Done."_s);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST(ScreenPrompts, ADialogRunsToItsResult) {
    ScreenPrompts prompts;
    QDialog dialog;
    QTimer::singleShot(0, &dialog, &QDialog::accept);
    EXPECT_EQ(prompts.exec(dialog), QDialog::Accepted);
}

} // namespace lingomat
