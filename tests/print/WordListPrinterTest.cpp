#include "WordListPrinter.h"

#include "Printer.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

struct Printed {
    double x;
    double y;
    QString text;
    PrintFont font;
};

/// Paper on which every character is half as wide as its font is high, and a line as high as the font: 20
/// twips to a point.
class PlainPrinter final : public Printer {
public:
    PlainPrinter(double width, double height) : m_width(width), m_height(height) {}

    [[nodiscard]] double Width() const override { return m_width; }
    [[nodiscard]] double Height() const override { return m_height; }
    void setFont(const PrintFont& font) override { m_font = font; }
    [[nodiscard]] double TextWidth(const QString& text) const override {
        return 10.0 * m_font.size * static_cast<double>(text.size());
    }
    [[nodiscard]] double TextHeight() const override { return 20.0 * m_font.size; }
    void EndDoc() override {}

    std::vector<std::vector<Printed>> pages{1};

protected:
    void drawText(const QString& text) override {
        pages.back().push_back({CurrentX, CurrentY, text, m_font});
    }
    void beginPage() override { pages.emplace_back(); }

private:
    double m_width;
    double m_height;
    PrintFont m_font;
};

// A4, less some unprintable margin.
constexpr double Width = 11500;
constexpr double Height = 16400;

constexpr double LeftColumn = 100;
constexpr double RightColumn = 5750;       // (11500 - 200) / 2 + 100
constexpr double FirstRow = 3 * 160 + 400; // path, page line and an empty line of 8 points; two of 10 points
constexpr double RowPitch = 240 * 1.25;    // 12 points and a quarter
constexpr double PageEnd = Height - 7 * 100;
constexpr int RowsOnAPage = 50; // the last of them is the first that ends behind PageEnd

WordListHead head() {
    return {.page = u"page"_s, .path = u"/home/me/vocab.lmt"_s, .left = u"Deutsch"_s, .right = u"Englisch"_s};
}

struct WordList : testing::Test {
    void expectAt(const Printed& printed, double x, double y, const QString& text, const PrintFont& font) {
        EXPECT_EQ(printed.text, text);
        EXPECT_DOUBLE_EQ(printed.x, x) << text.toStdString();
        EXPECT_DOUBLE_EQ(printed.y, y) << text.toStdString();
        EXPECT_EQ(printed.font, font) << text.toStdString();
    }

    PlainPrinter printer{Width, Height};
    const PrintFont small{u"Arial"_s, 8, false};
    const PrintFont bold{u"Arial"_s, 10, true};
    const PrintFont plain{u"Arial"_s, 12, false};
};

TEST_F(WordList, APageBeginsWithItsNumberThePathAndTheLanguages) {
    const WordListPrinter list(printer, head());
    ASSERT_EQ(printer.pages.size(), 1U);
    const std::vector<Printed>& page = printer.pages.front();
    ASSERT_EQ(page.size(), 4U);
    expectAt(page[0], (Width - 5 * 80) / 2, 0, u"page1"_s, small);
    expectAt(page[1], Width - 18 * 80 - 1000, 160, u"/home/me/vocab.lmt"_s, small);
    expectAt(page[2], LeftColumn, 480, u"Deutsch"_s, bold);
    expectAt(page[3], RightColumn, 480, u"Englisch"_s, bold);
}

TEST_F(WordList, RowsStandAQuarterOfTheirHeightApart) {
    WordListPrinter list(printer, head());
    list.addRow(u"der Hund"_s, u"the dog"_s);
    list.addRow(u"die Katze"_s, u"the cat"_s);
    const std::vector<Printed>& page = printer.pages.front();
    ASSERT_EQ(page.size(), 8U);
    expectAt(page[4], LeftColumn, FirstRow, u"der Hund"_s, plain);
    expectAt(page[5], RightColumn, FirstRow, u"the dog"_s, plain);
    expectAt(page[6], LeftColumn, FirstRow + RowPitch, u"die Katze"_s, plain);
    expectAt(page[7], RightColumn, FirstRow + RowPitch, u"the cat"_s, plain);
}

TEST_F(WordList, AnEmptyExpressionKeepsItsRow) {
    WordListPrinter list(printer, head());
    list.addRow(QString(), QString());
    list.addRow(u"a"_s, u"b"_s);
    EXPECT_DOUBLE_EQ(printer.pages.front().back().y, FirstRow + RowPitch);
}

TEST_F(WordList, OnlyTheLeftTextIsCutToItsColumn) {
    WordListPrinter list(printer, head());
    const QString wide(200, u'x');
    list.addRow(wide, wide);
    const std::vector<Printed>& page = printer.pages.front();
    // 5650 twips, less the margin, are 46 characters of 120 twips and a bit; one more goes for the dots.
    EXPECT_EQ(page[4].text, QString(45, u'x') + u"..."_s);
    EXPECT_EQ(page[5].text, wide);
    list.addRow(QString(46, u'x'), QString(46, u'x'));
    EXPECT_EQ(page[6].text, QString(46, u'x')) << "this one just fits";
    EXPECT_DOUBLE_EQ(page[6].y, FirstRow + RowPitch) << "nothing was wrapped";
}

TEST_F(WordList, TheNameOfALanguageIsCutAsWell) {
    WordListHead wide = head();
    wide.left = QString(300, u'x');
    wide.right = wide.left;
    const WordListPrinter list(printer, wide);
    EXPECT_TRUE(printer.pages.front()[2].text.endsWith(u"..."_s));
    EXPECT_EQ(printer.pages.front()[3].text, wide.right);
}

TEST_F(WordList, AFullPageIsFollowedByAnotherWithItsOwnHeader) {
    WordListPrinter list(printer, head());
    for (int row = 1; row <= RowsOnAPage + 1; ++row)
        list.addRow(QString::number(row), QString());
    ASSERT_EQ(printer.pages.size(), 2U);
    const Printed& last = printer.pages[0][printer.pages[0].size() - 2];
    EXPECT_EQ(last.text, QString::number(RowsOnAPage));
    EXPECT_LT(last.y, PageEnd);
    EXPECT_GE(last.y + RowPitch, PageEnd);
    const std::vector<Printed>& second = printer.pages[1];
    expectAt(second[0], (Width - 5 * 80) / 2, 0, u"page2"_s, small);
    expectAt(second[2], LeftColumn, 480, u"Deutsch"_s, bold);
    expectAt(second[4], LeftColumn, FirstRow, QString::number(RowsOnAPage + 1), plain);
}

TEST_F(WordList, WhatFitsOnOnePageHasOneHeader) {
    WordListPrinter list(printer, head());
    for (int row = 1; row <= RowsOnAPage; ++row)
        list.addRow(QString::number(row), QString());
    EXPECT_EQ(printer.pages.size(), 1U);
}

TEST_F(WordList, EveryRowIsPrintedOnceAndInOrder) {
    WordListPrinter list(printer, head());
    for (int row = 1; row <= 1000; ++row)
        list.addRow(QString::number(row), u"r"_s);
    EXPECT_EQ(printer.pages.size(), 20U);
    int expected = 0;
    for (const std::vector<Printed>& page : printer.pages) {
        for (size_t i = 4; i < page.size(); i += 2)
            EXPECT_EQ(page[i].text, QString::number(++expected));
    }
    EXPECT_EQ(expected, 1000);
}

TEST(WordListOnALabel, TakesARowOnEachPageHoweverSmallThePaper) {
    PlainPrinter printer(1500, 900);
    WordListPrinter list(printer, head());
    for (int row = 0; row < 3; ++row)
        list.addRow(u"expression"_s, u"other"_s);
    ASSERT_EQ(printer.pages.size(), 3U);
    for (const std::vector<Printed>& page : printer.pages)
        EXPECT_EQ(page.size(), 6U);
}

} // namespace
} // namespace lingomat
