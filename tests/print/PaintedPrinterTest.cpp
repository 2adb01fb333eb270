#include "PaintedPrinter.h"

#include "RecordingPaper.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

const PrintFont plain{u"Arial"_s, 12, false};

TEST(PaintedPrinter, MeasuresItsPaperInTwips) {
    RecordingPaper paper({.dotsPerInch = 600, .widthInInches = 8, .heightInInches = 11});
    const auto printer = paper.printer();
    EXPECT_NEAR(printer->Width(), 8 * 1440, 1e-6);
    EXPECT_NEAR(printer->Height(), 11 * 1440, 1e-6);
}

TEST(PaintedPrinter, PutsTextsWhereTheyWereWanted) {
    for (const int dots : {72, 300, 1200}) {
        RecordingPaper paper({.dotsPerInch = dots});
        const auto printer = paper.printer();
        printer->setFont(plain);
        printer->CurrentX = 1440;
        printer->CurrentY = 2880;
        printer->Print(u"Übung 日本"_s);
        EXPECT_DOUBLE_EQ(printer->CurrentX, 0);
        EXPECT_DOUBLE_EQ(printer->CurrentY, 2880 + printer->TextHeight());
        printer->EndDoc();
        ASSERT_EQ(paper.pages().size(), 1U);
        ASSERT_EQ(paper.pages()[0].size(), 1U);
        const RecordingPaper::Text& text = paper.pages()[0][0];
        EXPECT_EQ(text.text, u"Übung 日本"_s);
        EXPECT_NEAR(text.left, 1440, 1440.0 / dots);
        EXPECT_NEAR(text.top, 2880, 1440.0 / dots);
        EXPECT_EQ(text.points, 12);
        EXPECT_FALSE(text.bold);
    }
}

TEST(PaintedPrinter, ALineIsAsHighAsItsFont) {
    for (const int dots : {72, 600}) {
        RecordingPaper paper({.dotsPerInch = dots});
        const auto printer = paper.printer();
        double last = 0;
        for (const int size : {8, 10, 12}) {
            printer->setFont({u"Arial"_s, size, false});
            EXPECT_GT(printer->TextHeight(), 20 * size * 0.9) << dots;
            EXPECT_LT(printer->TextHeight(), 20 * size * 1.6) << dots;
            EXPECT_GT(printer->TextHeight(), last);
            last = printer->TextHeight();
        }
    }
}

TEST(PaintedPrinter, BoldIsBold) {
    RecordingPaper paper;
    const auto printer = paper.printer();
    printer->setFont({u"Arial"_s, 10, true});
    printer->Print(u"Deutsch"_s);
    printer->EndDoc();
    EXPECT_TRUE(paper.pages()[0][0].bold);
    EXPECT_EQ(paper.pages()[0][0].points, 10);
}

TEST(PaintedPrinter, ANewPageBeginsAtItsTop) {
    RecordingPaper paper;
    const auto printer = paper.printer();
    printer->setFont(plain);
    printer->CurrentY = 5000;
    printer->Print(u"a"_s);
    printer->NewPage();
    printer->Print(u"b"_s);
    printer->EndDoc();
    ASSERT_EQ(paper.pages().size(), 2U);
    EXPECT_EQ(paper.pages()[1][0].text, u"b"_s);
    EXPECT_NEAR(paper.pages()[1][0].top, 0, 5);
}

TEST(PaintedPrinter, SaysWhatThePaperRefuses) {
    {
        RecordingPaper paper({.takesPaint = false});
        EXPECT_THROW((void)paper.printer(), std::runtime_error);
    }
    RecordingPaper paper({.mostPages = 2, .arrives = false});
    const auto printer = paper.printer();
    printer->NewPage();
    EXPECT_THROW(printer->NewPage(), std::runtime_error);
    EXPECT_THROW(printer->EndDoc(), std::runtime_error);
}

} // namespace
} // namespace lingomat
