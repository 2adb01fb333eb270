#include "HelpBook.h"

#include "LittleHelp.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

TEST(HelpBook, ReadsItsContentsAsATree) {
    const LittleHelp files;
    const QList<HelpEntry> contents = HelpBook(files.pages()).contents();
    ASSERT_EQ(contents.size(), 2);
    EXPECT_EQ(contents[0].title, u"Trainer"_s);
    ASSERT_EQ(contents[0].children.size(), 1);
    EXPECT_EQ(contents[0].children[0].page, u"trainer.html#loop"_s);
    EXPECT_EQ(contents[1].page, u"list.html"_s);
}

TEST(HelpBook, ReadsAPageByItsSections) {
    const LittleHelp files;
    const std::optional<HelpPage> page = HelpBook(files.pages()).page(u"trainer.html#loop"_s);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->name, u"trainer.html"_s);
    EXPECT_EQ(page->title, u"Trainer"_s);
    EXPECT_EQ(page->keywords, u"exam"_s);
    ASSERT_EQ(page->sections.size(), 3);
    EXPECT_EQ(page->sections[1].text, u"It asks. See the list or nothing."_s);
    EXPECT_EQ(page->sections[2].heading, u"The loop"_s);
    EXPECT_EQ(page->sections[2].anchor, u"loop"_s);
    EXPECT_EQ(page->sections[2].text, u"Wrong answers come back, the café stays open."_s);
    EXPECT_EQ(page->links, QStringList({u"list.html"_s, u"gone.html"_s}));
    EXPECT_EQ(page->pictures, QStringList({u"pictures/wide.png"_s}));
}

TEST(HelpBook, ListsEachPageOfTheContentsOnce) {
    const LittleHelp files;
    QStringList names;
    const QList<HelpPage> pages = HelpBook(files.pages()).pages();
    for (const HelpPage& page : pages)
        names.append(page.name);
    EXPECT_EQ(names, QStringList({u"trainer.html"_s, u"list.html"_s}));
}

TEST(HelpBook, LeavesOutWhatItCannotRead) {
    const LittleHelp files;
    files.write(u"help/en/list.html"_s, "<html><body><p>cut off");
    EXPECT_FALSE(HelpBook(files.pages()).page(u"list.html"_s));
    EXPECT_FALSE(HelpBook(files.pages()).page(u"gone.html"_s));
    EXPECT_EQ(HelpBook(files.pages()).pages().size(), 1);
}

TEST(HelpBook, WithoutContentsThereIsNoHelp) {
    const LittleHelp files;
    EXPECT_TRUE(HelpBook(files.pages()).exists());
    files.remove(u"help/en/contents.html"_s);
    EXPECT_FALSE(HelpBook(files.pages()).exists());
    EXPECT_TRUE(HelpBook(files.pages()).contents().isEmpty());
}

TEST(HelpBook, PageAndAnchorComeApart) {
    EXPECT_EQ(withoutAnchor(u"trainer.html#loop"_s), u"trainer.html"_s);
    EXPECT_EQ(anchorOf(u"trainer.html#loop"_s), u"loop"_s);
    EXPECT_EQ(withoutAnchor(u"trainer.html"_s), u"trainer.html"_s);
    EXPECT_EQ(anchorOf(u"trainer.html"_s), QString());
}

} // namespace
} // namespace lingomat
