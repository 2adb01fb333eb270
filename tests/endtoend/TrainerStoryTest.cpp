// Two lessons with the whole program: answers that are typed, by every road that their judgement can take,
// and answers that are only remembered. What the windows say is held against the file.

#include "TestProgram.h"

#include "DBEngine.h"
#include "FlexGrid.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

constexpr int StartScore = 3;

/// What comes up between the answer and the verdict.
enum class Question { None, Synonym, Reference, Confirmation };

struct Answer {
    QString word;   ///< language 1
    QString stored; ///< language 2
    QString typed;
    bool right = false;
    Question question = Question::None;
    bool mainOnly = false; ///< the comparison takes the main part only
    QString prefix = {};   ///< of the expression in language 2
    QString near = {};     ///< a synonym, or the word that a reference leads to
};

const QList<Answer>& lesson() {
    static const QList<Answer> all{
        {u"Haus"_s, u"house"_s, u"house"_s, true},
        {u"wie"_s, u"how?"_s, u"how¿"_s, true},
        {u"hallo"_s, u"hello¡"_s, u"hello!"_s, true},
        {u"gehen"_s, u"go"_s, u"go"_s, true, Question::None, true, u"to"_s},
        {u"sehen"_s, u"see"_s, u"to see"_s, true, Question::None, false, u"to"_s},
        {u"hören"_s, u"hear"_s, u"hear"_s, false, Question::None, false, u"to"_s},
        {u"groß"_s, u"big"_s, u"LARGE"_s, true, Question::Synonym, false, {}, u"large"_s},
        {u"klein"_s, u"small"_s, u"little"_s, false, Question::Synonym, false, {}, u"little"_s},
        {u"Hütte"_s, u"hut"_s, u"cabin"_s, true, Question::Reference, false, {}, u"cabin"_s},
        {u"Bank"_s, u"bank"_s, u"Bench"_s, false, Question::Reference, false, {}, u"bench"_s},
        {u"Farbe"_s, u"colour"_s, u"color"_s, true, Question::Confirmation},
        {u"Wagen"_s, u"car"_s, u"cat"_s, false, Question::Confirmation},
        {u"Baum"_s, u"tree"_s, u"bush"_s, false},
        {u"Hund"_s, u"dog"_s, QString(), false},
        {u"Montag"_s, u"Monday"_s, u"monday"_s, false},
        {u"Katze"_s, u"cat"_s, u"  cat  "_s, true},
        {u"Stern"_s, u"*"_s, u"*"_s, true},
        {u"Apostroph"_s, u"l'eau"_s, u"l'eau"_s, true},
        {u"Muster"_s, u"[a-z]"_s, u"a"_s, false},
        {u"Ende"_s, u"end"_s, u"end"_s, true},
    };
    return all;
}

void addRow(dao::Recordset& table, const QList<std::pair<QString, dao::Value>>& fields) {
    table.AddNew();
    for (const auto& [field, value] : fields)
        table.setField(field, value);
    table.Update();
}

/// The lesson's entries come first in the file, those that references lead to behind them.
void writeLesson(const QString& path) {
    QList<TestEntry> entries;
    for (const Answer& answer : lesson())
        entries += TestEntry{answer.word, answer.stored, {}, {}, {}};
    QList<int> owners;
    for (qsizetype place = 0; place < lesson().size(); ++place) {
        if (lesson()[place].question != Question::Reference)
            continue;
        owners += static_cast<int>(place);
        entries += TestEntry{u"~"_s + lesson()[place].word, lesson()[place].near, {}, {}, {}};
    }
    writeDatabase(path, {.entries = entries});

    dao::Database file = dao::DBEngine::OpenDatabase(path);
    dao::Recordset rows = file.OpenRecordset(u"SELECT * FROM Vokabular"_s);
    dao::Recordset synonyms = file.OpenRecordset(u"SELECT * FROM Synonyme"_s);
    dao::Recordset references = file.OpenRecordset(u"SELECT * FROM Referenzen"_s);
    QList<int> keys;
    for (; !rows.EOF_(); rows.MoveNext()) {
        const qsizetype place = keys.size();
        keys += static_cast<int>(rows.field(u"ID"_s).toInteger());
        rows.Edit();
        rows.setField(u"Score"_s, StartScore);
        if (place < lesson().size())
            rows.setField(u"Lang2_Prefix"_s, lesson()[place].prefix);
        rows.Update();
    }
    for (qsizetype place = 0; place < lesson().size(); ++place)
        if (lesson()[place].question == Question::Synonym)
            addRow(synonyms, {{u"VID"_s, keys[place]},
                              {u"Sprache"_s, 2},
                              {u"Prefix"_s, QString()},
                              {u"Main"_s, lesson()[place].near},
                              {u"Suffix"_s, QString()},
                              {u"Kommentar"_s, QString()}});
    for (qsizetype reference = 0; reference < owners.size(); ++reference)
        addRow(references, {{u"von"_s, keys[owners[reference]]},
                            {u"nach"_s, keys[lesson().size() + reference]},
                            {u"Typ"_s, u"Similar meaning for expression in Deutsch"_s}});
    file.Close();
}

class Lesson : public testing::Test {
protected:
    Lesson() {
        writeLesson(path);
        program.rememberDatabase(path);
        program.start();
        program.app().state().Exceptions.readExceptions([](int number) {
            return QStringList{u"!¡"_s, u"?¿"_s}.value(number - 1);
        });
        program.click("Command1");
        child<QPushButton>(program.app().form2(), "Command4").click();
        program.app().form1().Form_Activate();
        program.click("Command2");
    }

    Trainer& trainer() { return program.app().trainer(); }
    void press(int option) { child<QToolButton>(trainer(), u"Toolbar1_Button%1"_s.arg(option)).click(); }
    void step() { child<QPushButton>(trainer(), "Command3").click(); }
    QString shown(int row) { return child<FlexGrid>(trainer(), "VokabelnGrid").TextMatrix(row, 0); }
    QString listedScore(qsizetype place) {
        return program.app().liste().MSFlexGrid1().TextMatrix(static_cast<int>(place) + 1, Liste::ColScore);
    }
    QString storedScore(qsizetype place) { return readColumn(path, u"Vokabular"_s, u"Score"_s)[place]; }

    void willAsk(const Answer& answer) {
        switch (answer.question) {
        case Question::None: return;
        case Question::Confirmation:
            program.prompts.expectDialog("ConfirmForm", [answer](QDialog& form) {
                EXPECT_EQ(child<QLabel>(form, "Typed").text(), answer.typed);
                EXPECT_EQ(child<QLabel>(form, "Stored").text(), answer.stored);
                child<QPushButton>(form, answer.right ? "Nein" : "Ja").click();
            });
            return;
        case Question::Synonym:
        case Question::Reference:
            program.prompts.expect({.icon = QMessageBox::Question,
                                    .text = ExpectedText::containing(
                                        answer.question == Question::Synonym
                                            ? u"recognized as Synonym"_s
                                            : u"'Similar meaning for expression in Deutsch.\r'Shall"_s),
                                    .answer = answer.right ? QMessageBox::Yes : QMessageBox::No});
        }
    }

    TestProgram program;
    const QString path = program.path(u"lesson.lmt"_s);
};

TEST_F(Lesson, TypedAnswersTakeEveryRoad) {
    press(8);
    press(10);
    int right = 0;
    for (qsizetype place = 0; place < lesson().size(); ++place) {
        const Answer& answer = lesson()[place];
        SCOPED_TRACE(answer.word.toStdString());
        if (trainer().FehlerBestaetigen != (answer.question == Question::Confirmation))
            press(11);
        program.prompts.expectDialog("InputFenster", [&answer, this](QDialog& form) {
            EXPECT_EQ(shown(1), answer.word);
            EXPECT_EQ(shown(3), QString());
            auto& mainOnly = child<QToolButton>(form, "Toolbar1_Button1");
            if (mainOnly.isChecked() != answer.mainOnly)
                mainOnly.click();
            child<QLineEdit>(form, "Text1").setText(answer.typed);
            child<QPushButton>(form, "OK").click();
        });
        willAsk(answer);
        step();
        EXPECT_TRUE(program.prompts.isFinished());
        program.prompts.verify();

        EXPECT_TRUE(shown(3).endsWith(answer.stored));
        EXPECT_EQ(child<QLabel>(trainer(), "Richtig").isVisible(), answer.right);
        EXPECT_EQ(child<QLabel>(trainer(), "NichtWort").isVisible(), !answer.right);
        EXPECT_EQ(child<QPushButton>(trainer(), "Suche").isVisible(), !answer.right);
        if (!answer.right) {
            EXPECT_EQ(child<QLabel>(trainer(), "NichtWort").text(), u"Not: "_s + answer.typed);
        }
        const QString score = QString::number(StartScore + (answer.right ? -1 : 1));
        EXPECT_EQ(listedScore(place), score);
        EXPECT_EQ(storedScore(place), score);
        right += answer.right;
        EXPECT_EQ(trainer().AnzahlRichtig, right);
    }
    EXPECT_EQ(readColumn(path, u"Vokabular"_s, u"Aenderungsdatum"_s).count(u"20020301"_s),
              program.app().liste().countRows());
}

TEST_F(Lesson, AfterAWrongAnswerTheSearchTellsWhatItMeans) {
    press(8);
    press(10);
    program.prompts.expectDialog("InputFenster", [](QDialog& form) {
        child<QLineEdit>(form, "Text1").setText(u"cat"_s);
        child<QPushButton>(form, "OK").click();
    });
    step();
    program.prompts.expectDialog("Bedeutung", [](QDialog& form) {
        const auto& found = child<FlexGrid>(form, "MSFlexGrid1");
        EXPECT_EQ(found.TextMatrix(0, 0), u"Englisch");
        EXPECT_EQ(found.TextMatrix(0, 1), u"Deutsch");
        ASSERT_EQ(found.Rows(), 2);
        EXPECT_EQ(found.TextMatrix(1, 0), u"cat");
        EXPECT_EQ(found.TextMatrix(1, 1), u"Katze");
        child<QPushButton>(form, "OK").click();
    });
    child<QPushButton>(trainer(), "Suche").click();
}

TEST_F(Lesson, RememberedAnswersAreTakenOnTrust) {
    press(8);
    int right = 0;
    for (qsizetype place = 0; place < lesson().size(); ++place) {
        const Answer& answer = lesson()[place];
        SCOPED_TRACE(answer.word.toStdString());
        step();
        EXPECT_EQ(shown(1), answer.word);
        EXPECT_EQ(shown(3), QString());
        program.prompts.expectDialog("ConfirmDlg", [&answer, this](QDialog& form) {
            EXPECT_TRUE(shown(3).endsWith(answer.stored));
            EXPECT_EQ(child<QLabel>(form, "Label1").text(), u"Is this the word you expected?");
            child<QPushButton>(form, answer.right ? "JaButton" : "NeinButton").click();
        });
        step();
        const QString score = QString::number(StartScore + (answer.right ? -1 : 1));
        EXPECT_EQ(listedScore(place), score);
        EXPECT_EQ(storedScore(place), score);
        right += answer.right;
        EXPECT_EQ(trainer().AnzahlRichtig, right);
        EXPECT_FALSE(child<QLabel>(trainer(), "Richtig").isVisible());
        EXPECT_FALSE(child<QLabel>(trainer(), "NichtWort").isVisible());
    }
}

TEST_F(Lesson, AnotherFileEndsTheSession) {
    child<QTabBar>(trainer(), "TabStrip1").setCurrentIndex(2);
    step();
    step();
    EXPECT_EQ(shown(1), lesson()[0].word);
    child<QToolButton>(trainer(), "UpDown1_Up").click();
    const QString other = program.path(u"other.lmt"_s);
    writeDatabase(other, {.entries = someEntries()});
    program.prompts.expectOpenFile(other);
    program.choose("Datei_Open");
    EXPECT_EQ(shown(1), QString());
    EXPECT_EQ(shown(3), QString());
    EXPECT_EQ(trainer().Position, 0);
    EXPECT_EQ(child<QLabel>(trainer(), "StatusBar1_Panel2").text(), u"0");
    EXPECT_FALSE(child<QWidget>(trainer(), "UpDown1").isVisible());
    EXPECT_TRUE(child<QWidget>(trainer(), "frNoReferences").isVisible());
    child<QToolButton>(trainer(), "UpDown1_Up").click(); // where it was it finds nothing of the new file
    EXPECT_EQ(shown(1), QString());
    program.prompts.expect({.text = u"End of sequence."});
    step();
}

TEST_F(Lesson, ThePadOfSpecialCharactersStaysUsableBesideTheAnswer) {
    press(8);
    press(10);
    program.prompts.expectDialog("InputFenster", [](QDialog& form) {
        child<QPushButton>(form, "Command1").click();
        const QWidgetList windows = QApplication::topLevelWidgets();
        EXPECT_TRUE(std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
            return window->objectName() == u"FontHelp"_s && window->isVisible();
        }));
        child<QLineEdit>(form, "Text1").setText(u"house"_s);
        child<QPushButton>(form, "OK").click();
    });
    step();
    EXPECT_TRUE(child<QLabel>(trainer(), "Richtig").isVisible());
}

} // namespace
} // namespace lingomat
