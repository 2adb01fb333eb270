#include "HelpWindow.h"

#include "ChildFinder.h"
#include "HelpBrowser.h"
#include "LittleHelp.h"
#include "TestContext.h"

#include <QAction>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class HelpWindowTest : public testing::Test {
protected:
    HelpWindowTest() : window(HelpBook(files.pages())) {}

    QLineEdit& searchText() { return child<QLineEdit>(window, "searchText"); }
    QListWidget& hits() { return child<QListWidget>(window, "hits"); }
    QTreeWidget& contents() { return child<QTreeWidget>(window, "contents"); }
    HelpBrowser& page() { return child<HelpBrowser>(window, "page"); }
    QAction& action(const char* name) { return child<QAction>(window, name); }
    QString text() { return page().toPlainText(); }

    void search(const QString& question) {
        window.showSearch();
        searchText().setText(question);
    }
    /// Shortcuts and focus are those of the window that is active.
    void activate() { ASSERT_TRUE(QTest::qWaitForWindowActive(&window)); }

    InterfaceLanguage language{u"En"_s};
    LittleHelp files;
    HelpWindow window;
};

TEST_F(HelpWindowTest, ShowsThePageAskedForAndMarksItInTheContents) {
    window.showPage(u"trainer.html#loop"_s);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(text().contains(u"Wrong answers"_s));
    EXPECT_EQ(window.currentPage(), u"trainer.html#loop"_s);
    ASSERT_NE(contents().currentItem(), nullptr);
    EXPECT_EQ(contents().currentItem()->text(0), u"Loop"_s);
    window.showPage(u"list.html"_s);
    EXPECT_EQ(contents().currentItem()->text(0), u"Vocab List"_s);
}

TEST_F(HelpWindowTest, BackAndForwardWalkThePagesSeen) {
    window.showPage(u"contents.html"_s);
    activate();
    EXPECT_FALSE(action("actionBack").isEnabled());
    window.showPage(u"trainer.html"_s);
    window.showPage(u"list.html"_s);
    QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window.currentPage(), u"trainer.html"_s);
    action("actionBack").trigger();
    EXPECT_EQ(window.currentPage(), u"contents.html"_s);
    QTest::keyClick(&window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(window.currentPage(), u"trainer.html"_s);
    action("actionContents").trigger();
    EXPECT_EQ(window.currentPage(), u"contents.html"_s);
}

TEST_F(HelpWindowTest, AnEntryOfTheContentsOpensItsPage) {
    window.showPage(u"contents.html"_s);
    Q_EMIT contents().itemActivated(contents().topLevelItem(0)->child(0), 0);
    EXPECT_EQ(window.currentPage(), u"trainer.html#loop"_s);
}

TEST_F(HelpWindowTest, ALinkLeadsOnAndOneIntoNothingIsTold) {
    window.showPage(u"trainer.html"_s);
    QSignalSpy missing(&window, &HelpWindow::pageMissing);
    Q_EMIT page().anchorClicked(QUrl(u"gone.html"_s));
    ASSERT_EQ(missing.size(), 1);
    EXPECT_EQ(missing[0][0].toString(), u"gone.html"_s);
    EXPECT_EQ(window.currentPage(), u"trainer.html"_s) << "the page stays";
    Q_EMIT page().anchorClicked(QUrl(u"list.html"_s));
    EXPECT_EQ(window.currentPage(), u"list.html"_s);
}

TEST_F(HelpWindowTest, SearchListsThePagesAndReturnOpensTheFirst) {
    search(u"café"_s);
    ASSERT_EQ(hits().count(), 1);
    EXPECT_TRUE(hits().item(0)->text().startsWith(u"Trainer\n"_s));
    EXPECT_EQ(child<QLabel>(window, "searchStatus").text(), u"1 page found"_s);
    QTest::keyClick(&searchText(), Qt::Key_Return);
    EXPECT_EQ(window.currentPage(), u"trainer.html#loop"_s);
    ASSERT_EQ(page().extraSelections().size(), 1);
    EXPECT_EQ(page().extraSelections().first().cursor.selectedText(), u"café"_s);
}

TEST_F(HelpWindowTest, SearchWithoutAHitSaysSo) {
    search(u"zebra"_s);
    EXPECT_EQ(hits().count(), 0);
    EXPECT_EQ(child<QLabel>(window, "searchStatus").text(), u"No page holds these words."_s);
    QTest::keyClick(&searchText(), Qt::Key_Return);
    EXPECT_EQ(window.currentPage(), u"contents.html"_s);
}

TEST_F(HelpWindowTest, CtrlFGoesToTheSearchAndDownIntoWhatWasFound) {
    window.showPage(u"list.html"_s);
    activate();
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(searchText().hasFocus());
    QTest::keyClicks(&searchText(), u"trainer"_s);
    EXPECT_EQ(hits().count(), 2);
    QTest::keyClick(&searchText(), Qt::Key_Down);
    EXPECT_TRUE(hits().hasFocus());
}

TEST_F(HelpWindowTest, EscapeLeavesTheSearchFirstAndTheWindowThen) {
    search(u"list"_s);
    QTest::keyClick(&searchText(), Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(searchText().text().isEmpty());
    EXPECT_TRUE(contents().isVisible());
    QTest::keyClick(&searchText(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

/// The width at which a page shows its only picture.
qreal shownWidth(const QTextBrowser& page) {
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isImageFormat())
                return it.fragment().charFormat().toImageFormat().width();
        }
    }
    return -1;
}

TEST_F(HelpWindowTest, APictureIsNeverWiderThanThePage) {
    QImage wide(2000, 400, QImage::Format_RGB32);
    wide.fill(Qt::gray);
    files.write(u"help/en/pictures/x"_s, {});
    ASSERT_TRUE(wide.save(files.pages() + u"/pictures/wide.png"_s));
    window.showPage(u"trainer.html"_s);
    const qreal before = shownWidth(page());
    EXPECT_GT(before, 100);
    EXPECT_LE(before, page().viewport()->width());
    window.resize(window.width() - 200, window.height());
    EXPECT_LT(shownWidth(page()), before);
    window.resize(3000, window.height());
    EXPECT_EQ(shownWidth(page()), 2000);
    // The same holds for a page that one comes back to.
    window.showPage(u"list.html"_s);
    window.resize(700, 500);
    action("actionBack").trigger();
    EXPECT_LE(shownWidth(page()), page().viewport()->width());
}

TEST_F(HelpWindowTest, StaysUsableWhileAModalDialogIsUp) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    window.showPage(u"list.html"_s);
    EXPECT_EQ(window.windowHandle()->transientParent(), dialog.windowHandle());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      searchText().mapTo(&window, searchText().rect().center()));
    EXPECT_TRUE(searchText().hasFocus());
}

TEST_F(HelpWindowTest, StaysUsableWhenAModalDialogComesUpLater) {
    window.showPage(u"list.html"_s);
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    EXPECT_TRUE(QTest::qWaitFor(
        [this, &dialog] { return window.windowHandle()->transientParent() == dialog.windowHandle(); }));
}

qreal brightness(const QColor& colour) {
    return (colour.redF() + colour.greenF() + colour.blueF()) / 3;
}

TEST(HelpColours, LinksAreLightOnDarkAndDarkOnLight) {
    QPalette light;
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::Link, Qt::blue);
    EXPECT_EQ(readableLinkColour(light), QColor(Qt::blue)) << "the palette's own where it can be read";
    light.setColor(QPalette::Link, Qt::yellow);
    EXPECT_LT(brightness(readableLinkColour(light)), 0.5);
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Link, Qt::blue);
    EXPECT_GT(brightness(readableLinkColour(dark)), 0.6);
}

TEST(HelpWindowTexts, AreInTheLanguageOfTheInterface) {
    const LittleHelp files;
    const TestContext context(u"De"_s);
    HelpWindow window{HelpBook(files.pages())};
    EXPECT_EQ(window.windowTitle(), u"Hilfe zu Lingomat"_s);
    EXPECT_EQ(child<QAction>(window, "actionBack").text(), u"Zurück"_s);
    EXPECT_EQ(child<QLabel>(window, "searchLabel").text(), u"&Suchen:"_s);
}

} // namespace
} // namespace lingomat
