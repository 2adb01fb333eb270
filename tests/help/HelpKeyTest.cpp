#include "Help.h"

#include "HelpWindow.h"
#include "LittleHelp.h"
#include "TestContext.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class HelpKey : public testing::Test {
protected:
    HelpKey() : help(context.prompts, files.programFolder()) { form.setObjectName(u"Liste"_s); }

    QString shown() const {
        return help.window() && help.window()->isVisible() ? help.window()->currentPage() : u"-"_s;
    }

    LittleHelp files;
    TestContext context;
    Help help;
    QDialog form;
};

TEST_F(HelpKey, OpensThePageOfTheWindow) {
    QLineEdit field(&form);
    QTest::keyClick(&field, Qt::Key_F1);
    EXPECT_EQ(shown(), u"list.html"_s);
}

TEST_F(HelpKey, DoesNotReachTheControl) {
    struct Counting : QWidget {
        using QWidget::QWidget;
        void keyPressEvent(QKeyEvent* event) override { keys += event->key() == Qt::Key_F1 ? 1 : 0; }
        int keys = 0;
    } control(&form);
    QTest::keyClick(&control, Qt::Key_F1);
    EXPECT_EQ(control.keys, 0);
    QTest::keyClick(&control, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(control.keys, 1) << "other keys are the control's";
    EXPECT_EQ(shown(), u"list.html"_s);
}

TEST_F(HelpKey, WorksInAModalDialog) {
    QDialog dialog(&form);
    dialog.setObjectName(u"Trainer"_s);
    QLineEdit field(&dialog);
    dialog.setModal(true);
    dialog.show();
    QTest::keyClick(&field, Qt::Key_F1);
    EXPECT_EQ(shown(), u"trainer.html"_s);
    QTest::keyClicks(&*help.window()->findChild<QLineEdit*>(u"searchText"_s), u"rows"_s);
    EXPECT_EQ(help.window()->findChild<QLineEdit*>(u"searchText"_s)->text(), u"rows"_s);
}

TEST_F(HelpKey, ClosesAnOpenMenuFirst) {
    form.show();
    QMenu menu(&form);
    menu.addAction(u"one"_s);
    menu.popup(form.pos());
    QTest::keyClick(&menu, Qt::Key_F1);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(shown(), u"list.html"_s);
}

TEST_F(HelpKey, ContentsAndSearchOpenTheWindow) {
    help.showContents();
    EXPECT_EQ(shown(), u"contents.html"_s);
    help.close();
    EXPECT_EQ(shown(), u"-"_s);
    help.showSearch();
    EXPECT_EQ(help.window()->focusWidget(), help.window()->findChild<QLineEdit*>(u"searchText"_s));
    EXPECT_EQ(shown(), u"contents.html"_s);
}

TEST_F(HelpKey, WithoutAHelpTheUserIsTold) {
    files.remove(u"help/en/contents.html"_s);
    const QString text = u"Help content could not be displayed. No help file assigned to this application."_s;
    for (int i = 0; i < 3; ++i)
        context.prompts.expectInformation(text);
    help.showContents();
    help.showSearch();
    QTest::keyClick(&form, Qt::Key_F1);
    EXPECT_EQ(help.window(), nullptr);
}

TEST_F(HelpKey, APageThatIsGoneIsTold) {
    files.remove(u"help/en/list.html"_s);
    context.prompts.expect({.text = u"The page 'list.html' of the help cannot be read."_s});
    QTest::keyClick(&form, Qt::Key_F1);
}

TEST(HelpFiles, AreThoseOfTheInterfaceLanguage) {
    const LittleHelp files;
    TestContext context(u"De"_s);
    EXPECT_EQ(helpFolder(u"/x"_s), u"/x/help/de"_s);
    Help help(context.prompts, files.programFolder());
    files.remove(u"help/de/contents.html"_s);
    context.prompts.expectInformation(
        u"Hilfeinhalt konnte nicht angezeigt werden. Dieser Anwendung ist keine "
        "Hilfedatei zugeordnet."_s);
    help.showContents();
}

} // namespace
} // namespace lingomat
