#include "TestProgram.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

const QString Question = u"Not all changes have been saved! Do you really want to quit?"_s;

class End : public testing::Test {
protected:
    End() : file(program.path(u"vocab.lmt"_s)) {
        program.startWithDatabase();
        exits = std::make_unique<QSignalSpy>(&program.app().form1(), &Form1::exitRequested);
    }
    void expectEnded() {
        Application& app = program.app();
        EXPECT_EQ(exits->count(), 1);
        for (const QWidget* form : std::initializer_list<QWidget*>{&app.liste(), &app.trainer(), &app.form1(),
                                                                   &app.form2(), &app.splash()})
            EXPECT_FALSE(form->isVisible()) << form->objectName().toStdString();
        EXPECT_FALSE(app.state().DBHandler.Database.isOpen());
    }
    void expectStillRunning() {
        EXPECT_EQ(exits->count(), 0);
        EXPECT_TRUE(program.app().form1().isVisible());
        EXPECT_TRUE(program.app().state().DBHandler.Database.isOpen());
        EXPECT_EQ(program.app().state().CurrentDBPath, file);
    }

    TestProgram program;
    const QString file;
    std::unique_ptr<QSignalSpy> exits;
};

TEST_F(End, QuitClosesTheDatabaseAndHidesEveryWindow) {
    program.click("Command1");
    program.click("Command4");
    expectEnded();
    EXPECT_EQ(program.recentDatabase(), file);
}

TEST_F(End, MenuAndFrameAreTheSameCommand) {
    program.choose("Menu_Datei_Beenden");
    expectEnded();
}

TEST_F(End, ClosingTheFrameEnds) {
    program.app().form1().close();
    expectEnded();
}

TEST_F(End, QuitCleansUnusedRowsUp) {
    dao::Recordset& areas = program.app().state().DBHandler.RecordsetBereiche;
    areas.AddNew();
    areas.setField(u"Bereich_Text"_s, u"nobody's"_s);
    areas.Update();
    program.click("Command4");
    expectEnded();
    EXPECT_EQ(readColumn(file, u"Bereiche"_s, u"Bereich_Text"_s), QStringList({u"talk"_s, u"home"_s}));
}

TEST_F(End, EachKindOfPendingChangeAsks) {
    for (qint16 Liste::*counter : {&Liste::AnzahlNeu, &Liste::AnzahlGeaendert, &Liste::AnzahlGeloescht}) {
        program.app().liste().*counter = 1;
        program.prompts.expectYesNo(Question, false);
        program.click("Command4");
        expectStillRunning();
        EXPECT_EQ(program.app().liste().*counter, 1);
        program.app().liste().*counter = 0;
    }
}

TEST_F(End, AnswerNoShowsTheListAndKeepsRunning) {
    program.app().liste().AnzahlGeaendert = 1;
    program.prompts.expectYesNo(Question, false);
    program.app().form1().close();
    expectStillRunning();
    EXPECT_TRUE(program.app().liste().isVisible());

    program.prompts.expectYesNo(Question, true);
    program.click("Command4");
    expectEnded();
}

TEST_F(End, AnswerYesDropsTheChanges) {
    Liste& liste = program.app().liste();
    liste.AnzahlNeu = 1;
    liste.AnzahlGeaendert = 2;
    liste.AnzahlGeloescht = 3;
    program.prompts.expectYesNo(Question, true);
    program.click("Command4");
    expectEnded();
    EXPECT_EQ(liste.AnzahlNeu + liste.AnzahlGeaendert + liste.AnzahlGeloescht, 0);
}

TEST(EndInGerman, Asks) {
    TestProgram program(u"De"_s);
    program.startWithDatabase();
    program.app().liste().AnzahlNeu = 1;
    program.prompts.expectYesNo(u"Es wurden noch nicht alle Änderungen gesichert! Wirklich beenden?", false);
    program.click("Command4");
    EXPECT_TRUE(program.app().form1().isVisible());
}

TEST(EndWithoutDatabase, Ends) {
    TestProgram program;
    program.prompts.expectErrorContaining(u"Example.lmt"_s);
    program.start();
    const QSignalSpy exits(&program.app().form1(), &Form1::exitRequested);
    program.click("Command4");
    EXPECT_EQ(exits.count(), 1);
    EXPECT_FALSE(program.app().form1().isVisible());
}

/// Notes where the main window is while a box is up.
class WatchingPrompts final : public Prompts {
public:
    QMessageBox::StandardButton message(QWidget* parent, const Message& /*message*/) override {
        boxParent = parent;
        placeOfWindow = window->pos();
        return QMessageBox::No;
    }
    int exec(QDialog& /*dialog*/) override { return 0; }
    std::optional<QString> openFile(QWidget* /*parent*/, const FileDialogRequest& /*request*/) override {
        return {};
    }
    std::optional<QString> saveFile(QWidget* /*parent*/, const FileDialogRequest& /*request*/) override {
        return {};
    }
    void beep() override {}

    QWidget* window = nullptr;
    QWidget* boxParent = nullptr;
    QPoint placeOfWindow;
};

TEST(ShowMessage, WindowIsOutOfTheWayMeanwhile) {
    WatchingPrompts watching;
    TestProgram program;
    program.promptsInPlace = &watching;
    program.startWithDatabase();
    Form1& form = program.app().form1();
    watching.window = &form;
    form.move(120, 80);

    program.app().liste().AnzahlNeu = 1;
    program.click("Command4");
    EXPECT_NEAR(watching.placeOfWindow.x(), -10000, 20) << "give or take a window frame";
    EXPECT_EQ(watching.boxParent, nullptr) << "the box would follow its parent off the screen";
    EXPECT_EQ(form.pos(), QPoint(120, 80));
}

} // namespace
} // namespace lingomat
