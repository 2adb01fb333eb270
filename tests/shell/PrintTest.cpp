#include "TestProgram.h"

#include "FlexGrid.h"
#include "Globals.h"
#include "PrintOrder.h"
#include "RecordingPaper.h"

#include <QAction>
#include <QApplication>
#include <QProgressBar>
#include <QPushButton>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

constexpr size_t HeadTexts = 4; // of a page: number, path, two languages

struct OrderTexts {
    const char* option;
    bool Trainer::*order;
    const char16_t* english;
    const char16_t* german;
};
constexpr OrderTexts Orders[] = {
    {"sequential", &Trainer::Reihenfolge_sequentiell,
     u"For the Trainer the option 'sequential' is set. The vocabulary will be printed out in the same order "
     u"as currently in the Vocab List.",
     u"Für den Vokabeltrainer ist die Option 'Sequentiell' eingestellt. Die Vokabeln werden in der selben "
     u"Reihenfolge wie in der Vokabelliste ausgedruckt."},
    {"shuffle", &Trainer::Reihenfolge_shuffle,
     u"For the Trainer the option 'Shuffle' is set. The vocabulary will be shuffled before printed out.",
     u"Für den Vokabeltrainer ist die Option 'Mischen' eingestellt. Die Vokabeln werden vor dem Ausdrucken "
     u"gemischt."},
    {"random", &Trainer::Reihenfolge_random,
     u"For the Trainer the option 'Random' is set. Die Vokabeln werden vor dem Ausdrucken gemischt.",
     u"Für den Vokabeltrainer ist die Option 'Random' eingestellt. The vocabulary will be shuffled before "
     u"printed out."},
};
constexpr auto EnglishEnd =
    u"\n\nIf you want to print out the vocabulary in a different order, change the order option or sort the "
    u"vocabulary in the Vocab List.\n\nShall the vocabulary be printed out in the current order?";
constexpr auto GermanEnd =
    u"\n\nWenn Sie die Vokabeln in einer anderen Reihenfolge drucken wollen, ändern Sie die "
    u"Reihenfolgenoption bzw. sortieren Sie die Vokabeln in der Vokabelliste.\n\nSollen die Vokabeln in der "
    u"aktuell eingestellten Reihenfolge ausgedruckt werden?";

class Print : public testing::Test {
protected:
    explicit Print(const QString& language = u"En"_s) : program(language) {
        program.startWithDatabase();
        fillList(
            {{u"eins"_s, u"one"_s}, {u"zwei"_s, u"two"_s}, {u"drei"_s, u"three"_s}, {u"vier"_s, u"four"_s}});
    }

    void fillList(const QList<std::pair<QString, QString>>& rows) {
        Liste& liste = program.app().liste();
        FlexGrid& grid = liste.MSFlexGrid1();
        liste.initialisiereListe();
        grid.setRows(static_cast<int>(rows.size()) + 1);
        for (int row = 1; row < grid.Rows(); ++row) {
            grid.setTextMatrix(row, Liste::ColSchluessel, QString::number(row));
            grid.setTextMatrix(row, Liste::ColSprache1, rows.at(row - 1).first);
            grid.setTextMatrix(row, Liste::ColSprache2, rows.at(row - 1).second);
        }
        program.app().state().SelectionValid = true;
        program.app().form1().GreyOut();
        program.app().trainer().Command6_Click();
    }
    void setOrder(bool Trainer::*order) {
        for (const OrderTexts& each : Orders)
            program.app().trainer().*each.order = each.order == order;
    }
    void expectQuestion(QMessageBox::StandardButton answer = QMessageBox::Yes) {
        program.prompts.expect(
            {.icon = QMessageBox::NoIcon, .text = ExpectedText::anything(), .answer = answer});
    }
    void print() {
        expectQuestion();
        program.expectPrinter(paper.output());
        program.choose("Datei_Drucken");
        program.prompts.verify();
    }
    QStringList texts(size_t page = 0) const {
        QStringList all;
        for (const RecordingPaper::Text& text : paper.pages().at(page))
            all.append(text.text);
        return all;
    }
    QStringList rows() const {
        QStringList all;
        for (size_t page = 0; page < paper.pages().size(); ++page)
            all += texts(page).mid(HeadTexts);
        return all;
    }

    TestProgram program;
    RecordingPaper paper;
};

struct PrintInGerman : Print {
    PrintInGerman() : Print(u"De"_s) {}
};

TEST(PrintOrder, IsThatOfTheListOrOfTheShuffleThatFitsIt) {
    IntegerArray shuffled;
    EXPECT_EQ(printOrder(0, true, shuffled), (std::vector<int>{}));
    EXPECT_EQ(printOrder(0, false, shuffled), (std::vector<int>{}));
    EXPECT_EQ(printOrder(3, false, shuffled), (std::vector{1, 2, 3})) << "nothing was shuffled yet";
    shuffled.redim(3);
    shuffled(1) = 3;
    shuffled(2) = 1;
    shuffled(3) = 2;
    EXPECT_EQ(printOrder(3, false, shuffled), (std::vector{3, 1, 2}));
    EXPECT_EQ(printOrder(3, true, shuffled), (std::vector{1, 2, 3}));
    EXPECT_EQ(printOrder(4, false, shuffled), (std::vector{1, 2, 3, 4})) << "of another list";
    EXPECT_EQ(printOrder(2, false, shuffled), (std::vector{1, 2}));
}

TEST_F(Print, AsksWithTheOrderOfTheTrainer) {
    for (const OrderTexts& order : Orders) {
        setOrder(order.order);
        program.prompts.expect({.icon = QMessageBox::NoIcon,
                                .text = QString::fromUtf16(order.english) + QString::fromUtf16(EnglishEnd),
                                .answer = QMessageBox::No,
                                .title = u"Order of vocabulary OK?"_s,
                                .buttons = QMessageBox::Yes | QMessageBox::No});
        program.choose("Datei_Drucken");
        program.prompts.verify();
    }
}

TEST_F(PrintInGerman, AsksWithTheOrderOfTheTrainer) {
    for (const OrderTexts& order : Orders) {
        setOrder(order.order);
        program.prompts.expect({.icon = QMessageBox::NoIcon,
                                .text = QString::fromUtf16(order.german) + QString::fromUtf16(GermanEnd),
                                .answer = QMessageBox::No,
                                .title = u"Vokabelreihenfolge OK?"_s,
                                .buttons = QMessageBox::Yes | QMessageBox::No});
        program.choose("Datei_Drucken");
        program.prompts.verify();
    }
}

TEST_F(Print, AnswerNoPrintsNothing) {
    setOrder(&Trainer::Reihenfolge_shuffle);
    const IntegerArray before = program.app().trainer().Sequenz;
    expectQuestion(QMessageBox::No);
    program.choose("Datei_Drucken");
    EXPECT_EQ(program.app().trainer().Sequenz, before);
}

TEST_F(Print, CancellingThePrinterPrintsAndShufflesNothing) {
    setOrder(&Trainer::Reihenfolge_shuffle);
    const IntegerArray before = program.app().trainer().Sequenz;
    expectQuestion();
    program.expectPrinter({});
    program.choose("Datei_Drucken");
    EXPECT_EQ(program.app().trainer().Sequenz, before);
}

TEST_F(Print, PrintsTheListUnderItsHead) {
    print();
    ASSERT_EQ(paper.pages().size(), 1U);
    EXPECT_EQ(texts(), (QStringList{u"page1"_s, program.app().state().CurrentDBPath, u"Deutsch"_s,
                                    u"Englisch"_s, u"eins"_s, u"one"_s, u"zwei"_s, u"two"_s, u"drei"_s,
                                    u"three"_s, u"vier"_s, u"four"_s}));
    EXPECT_TRUE(paper.isFinished());
    const RecordingPaper::Page& page = paper.pages()[0];
    const double width = 8 * 1440;
    EXPECT_NEAR(page[0].left + page[0].width / 2, width / 2, 10) << "centred";
    EXPECT_NEAR(page[1].left + page[1].width, width - 1000, 10) << "ranged right";
    EXPECT_NEAR(page[4].left, 100, 3);
    EXPECT_NEAR(page[5].left, width / 2, 3);
    EXPECT_NEAR(page[4].top, page[5].top, 3);
    EXPECT_EQ(page[0].points, 8);
    EXPECT_EQ(page[1].points, 8);
    EXPECT_EQ(page[2].points, 10);
    EXPECT_TRUE(page[2].bold);
    EXPECT_EQ(page[4].points, 12);
    EXPECT_FALSE(page[4].bold);
    const double pitch = page[6].top - page[4].top;
    EXPECT_NEAR(page[8].top - page[6].top, pitch, 3);
    const RecordingPaper measure;
    const auto printer = measure.printer();
    printer->setFont({u"Arial"_s, 12, false});
    EXPECT_NEAR(pitch, 1.25 * printer->TextHeight(), 3) << "a line and a quarter";
}

TEST_F(PrintInGerman, CallsAPageSeite) {
    print();
    EXPECT_EQ(texts().first(), u"Seite1"_s);
}

TEST_F(Print, TheLanguageOnTopOfTheTrainerStandsOnTheLeft) {
    program.app().trainer().Lang1Zuerst = false;
    program.app().trainer().Lang2Zuerst = true;
    print();
    EXPECT_EQ(texts().mid(2, 4), (QStringList{u"Englisch"_s, u"Deutsch"_s, u"one"_s, u"eins"_s}));
}

TEST_F(Print, ShufflesAnewInShuffledOrder) {
    setOrder(&Trainer::Reihenfolge_shuffle);
    program.app().trainer().Position = 3;
    print();
    const Trainer& trainer = program.app().trainer();
    ASSERT_EQ(trainer.Sequenz.size(), 4);
    EXPECT_EQ(trainer.Position, 0) << "a new permutation is a new session";
    const QStringList german{u"eins"_s, u"zwei"_s, u"drei"_s, u"vier"_s};
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(rows().at((i - 1) * 2), german.at(trainer.returnSequenz(i) - 1));
}

TEST_F(Print, RandomOrderPrintsTheLastShuffleAndShufflesNothing) {
    setOrder(&Trainer::Reihenfolge_shuffle);
    program.app().trainer().Command6_Click();
    IntegerArray& sequence = program.app().trainer().Sequenz;
    for (int i = 1; i <= 4; ++i)
        sequence(i) = static_cast<qint16>(5 - i);
    const IntegerArray before = sequence;
    setOrder(&Trainer::Reihenfolge_random);
    print();
    EXPECT_EQ(sequence, before);
    EXPECT_EQ(rows(), (QStringList{u"vier"_s, u"four"_s, u"drei"_s, u"three"_s, u"zwei"_s, u"two"_s,
                                   u"eins"_s, u"one"_s}));
}

TEST_F(Print, RandomOrderBeforeAnyShufflePrintsTheOrderOfTheList) {
    setOrder(&Trainer::Reihenfolge_random);
    print();
    EXPECT_EQ(rows().mid(0, 3), (QStringList{u"eins"_s, u"one"_s, u"zwei"_s}));
}

TEST_F(Print, AShuffleOfAnotherListIsForgotten) {
    setOrder(&Trainer::Reihenfolge_shuffle);
    program.app().trainer().Command6_Click();
    fillList({{u"eins"_s, u"one"_s}, {u"zwei"_s, u"two"_s}});
    setOrder(&Trainer::Reihenfolge_shuffle);
    program.app().trainer().Sequenz.redim(4);
    setOrder(&Trainer::Reihenfolge_random);
    print();
    EXPECT_EQ(rows(), (QStringList{u"eins"_s, u"one"_s, u"zwei"_s, u"two"_s}));
}

TEST_F(Print, LeavesTheRowOfTheListWhereItIs) {
    FlexGrid& grid = program.app().liste().MSFlexGrid1();
    grid.setRow(2);
    print();
    EXPECT_EQ(grid.Row(), 2) << "the Trainer may be asking for it";
}

TEST_F(Print, OnlyTheLeftTextIsCut) {
    const QString wide = u"ein langes Wort "_s.repeated(20).trimmed();
    fillList({{wide, wide}, {u"zwei"_s, u"two"_s}});
    print();
    const RecordingPaper::Page& page = paper.pages()[0];
    ASSERT_EQ(page.size(), HeadTexts + 4);
    EXPECT_TRUE(page[4].text.endsWith(u"..."_s));
    EXPECT_TRUE(wide.startsWith(page[4].text.chopped(3)));
    EXPECT_LE(page[4].left + page[4].width, page[5].left) << "the columns stay apart";
    EXPECT_EQ(page[5].text, wide) << "neither cut nor wrapped";
}

TEST_F(Print, AnEmptyListHasAPageWithAHead) {
    fillList({});
    print();
    ASSERT_EQ(paper.pages().size(), 1U);
    EXPECT_EQ(texts().size(), qsizetype(HeadTexts));
    program.app().liste().LoescheListe(); // down to its placeholder
    program.app().state().SelectionValid = true;
    print();
    EXPECT_EQ(paper.pages().size(), 1U);
}

TEST_F(Print, OneRowIsOnePage) {
    fillList({{u"eins"_s, u"one"_s}});
    print();
    ASSERT_EQ(paper.pages().size(), 1U);
    EXPECT_EQ(rows(), (QStringList{u"eins"_s, u"one"_s}));
}

TEST_F(Print, ManyRowsAreManyPagesAndTheDisplayFollows) {
    QList<std::pair<QString, QString>> many;
    for (int i = 1; i <= 5000; ++i)
        many.append({u"Wort %1"_s.arg(i), u"word %1"_s.arg(i)});
    fillList(many);
    print();
    EXPECT_GT(paper.pages().size(), 90U);
    EXPECT_EQ(rows().size(), 10000);
    EXPECT_EQ(rows().last(), u"word 5000"_s);
    EXPECT_EQ(texts(1).first(), u"page2"_s);
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (window->objectName() == u"Progress"_s) {
            EXPECT_FALSE(window->isVisible());
            EXPECT_EQ(window->windowTitle(), u"Printing vocabulary ..."_s);
            EXPECT_EQ(child<QProgressBar>(*window, "ProgressBar1").maximum(), 5000);
            EXPECT_EQ(child<QProgressBar>(*window, "ProgressBar1").value(), 5000);
        }
    }
}

TEST_F(Print, APrinterThatStopsIsTold) {
    QList<std::pair<QString, QString>> many(500, {u"Wort"_s, u"word"_s});
    fillList(many);
    RecordingPaper stopping({.mostPages = 2});
    expectQuestion();
    program.expectPrinter(stopping.output());
    program.prompts.expectError(u"The printer does not take another page."_s);
    program.choose("Datei_Drucken");
    EXPECT_EQ(LastErrorText, u"The printer does not take another page."_s);
    EXPECT_FALSE(stopping.isFinished());
    print();
    EXPECT_TRUE(paper.isFinished()) << "the next printout is not bothered";
}

TEST_F(Print, APrinterThatTakesNothingIsTold) {
    const RecordingPaper dead({.takesPaint = false});
    expectQuestion();
    program.expectPrinter(dead.output());
    program.prompts.expectError(u"The printer cannot be used, or the file cannot be written."_s);
    program.choose("Datei_Drucken");
    EXPECT_TRUE(dead.pages()[0].empty());
}

TEST_F(Print, APrintoutThatIsLostAtTheEndIsTold) {
    const RecordingPaper lost({.arrives = false});
    expectQuestion();
    program.expectPrinter(lost.output());
    program.prompts.expectErrorContaining(u"The printout was not finished"_s);
    program.choose("Datei_Drucken");
}

TEST_F(Print, TheListOffersItByButtonAndMenu) {
    Liste& liste = program.app().liste();
    const std::function<void()> ways[] = {[&liste] { child<QPushButton>(liste, "Drucken").click(); },
                                          [&liste] { child<QAction>(liste, "mnDrucken").trigger(); }};
    for (const auto& choose : ways) {
        const RecordingPaper another;
        expectQuestion();
        program.expectPrinter(another.output());
        choose();
        program.prompts.verify();
        EXPECT_EQ(another.pages()[0].size(), HeadTexts + 8);
    }
}

TEST_F(Print, IsOfferedOnceThereIsASelection) {
    EXPECT_TRUE(program.isEnabled("Datei_Drucken"));
    program.app().state().SelectionValid = false;
    program.app().form1().GreyOut();
    EXPECT_FALSE(program.isEnabled("Datei_Drucken"));
}

} // namespace
} // namespace lingomat
