// References between entries, over two runs of the program: created, seen from either side, changed, deleted,
// filtered by, shown and asked for by the Trainer. What the windows say is held against the file.

#include "TestProgram.h"

#include "FlexGrid.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

constexpr int QuestionRow = 1;

class References : public testing::TestWithParam<QString> {
protected:
    References() : program(GetParam()) {
        writeDatabase(path, {.entries = someEntries()});
        program.rememberDatabase(path);
        start();
    }

    [[nodiscard]] QString text(const QString& inGerman, const QString& inEnglish) const {
        return GetParam() == u"En"_s ? inEnglish : inGerman;
    }
    [[nodiscard]] QString seeAlso() const { return text(u"Siehe auch"_s, u"See also"_s); }
    [[nodiscard]] QString opposite() const { return text(u"Gegenteil von"_s, u"Opposite of"_s); }
    [[nodiscard]] QString similar() const {
        return text(u"Ähnliche Bedeutung für Ausdruck auf Deutsch"_s,
                    u"Similar meaning for expression in Deutsch"_s);
    }

    void start() {
        program.start();
        program.click("Command1");
        run();
    }
    void startAgain() {
        program.click("Command4");
        program.end();
        start();
    }
    Form2& selection() { return program.app().form2(); }
    FlexGrid& list() { return program.app().liste().MSFlexGrid1(); }
    void run() {
        child<QPushButton>(selection(), "Command4").click();
        program.app().form1().Form_Activate();
    }
    [[nodiscard]] QStringList listed() {
        QStringList all;
        for (int row = 1; row < list().Rows(); ++row)
            all.append(list().TextMatrix(row, Liste::ColSprache1));
        return all;
    }
    void goTo(const QString& expression) {
        for (int row = 1; row < list().Rows(); ++row) {
            if (list().TextMatrix(row, Liste::ColSprache1) == expression)
                list().setRow(row);
        }
        ASSERT_EQ(list().TextMatrix(list().Row(), Liste::ColSprache1), expression);
    }

    /// Has `act` work on the references of an entry.
    void withReferences(const QString& expression, const std::function<void(QDialog&)>& act) {
        goTo(expression);
        program.prompts.expectDialog("Relationen", [act](QDialog& dialog) {
            act(dialog);
            child<QPushButton>(dialog, "OK").click();
        });
        expectFurther();
        program.app().showReferences();
        EXPECT_TRUE(program.prompts.isFinished());
    }
    /// What comes up above the references.
    std::function<void()> expectFurther = [] {};

    [[nodiscard]] QStringList shownReferences(const QString& expression) {
        QStringList all;
        withReferences(expression, [&all](QDialog& dialog) { all = rows(dialog); });
        return all;
    }
    static QStringList rows(QDialog& dialog) {
        const auto& grid = child<FlexGrid>(dialog, "MSFlexGrid1");
        QStringList all;
        for (int row = 1; row < grid.Rows() && !grid.TextMatrix(row, 1).isEmpty(); ++row)
            all.append(grid.TextMatrix(row, 1) + u": "_s + grid.TextMatrix(row, 2));
        return all;
    }
    static void chooseFirstRow(QDialog& dialog) {
        auto& grid = child<FlexGrid>(dialog, "MSFlexGrid1");
        grid.setFocus();
        QTest::keyClick(&grid, Qt::Key_Down);
    }

    void create(const QString& from, const QString& to, const QString& type) {
        expectFurther = [this, to, type] {
            program.prompts.expectDialog("NeueRelation", [to, type](QDialog& dialog) {
                child<QPushButton>(dialog, "cmdSuchen").click();
                EXPECT_EQ(child<QLineEdit>(dialog, "Text3").text(), to);
                child<QComboBox>(dialog, "Combo1").setEditText(type);
                child<QPushButton>(dialog, "Command1").click();
                child<QPushButton>(dialog, "Command2").click();
            });
            program.prompts.expectDialog("frmSuchen", [to](QDialog& dialog) {
                QTest::keyClicks(&child<QLineEdit>(dialog, "txtAusdruck"), to.first(2).toLower());
                child<QPushButton>(dialog, "Command1").click();
            });
            program.prompts.expectInformation(
                text(u"Die Referenz wurde erzeugt"_s, u"The Reference has been created"_s));
        };
        withReferences(from, [](QDialog& dialog) { child<QPushButton>(dialog, "Add").click(); });
        expectFurther = [] {};
    }
    void changeFirst(const QString& of, const QString& type) {
        expectFurther = [this, type] {
            program.prompts.expectDialog("NeueRelation", [type](QDialog& dialog) {
                child<QComboBox>(dialog, "Combo1").setEditText(type);
                child<QPushButton>(dialog, "Command1").click();
                child<QPushButton>(dialog, "Command2").click();
            });
            program.prompts.expectInformation(
                text(u"Die Referenz wurde verändert"_s, u"The Reference has been modified"_s));
        };
        withReferences(of, [](QDialog& dialog) {
            chooseFirstRow(dialog);
            child<QPushButton>(dialog, "Change").click();
        });
        expectFurther = [] {};
    }
    void removeFirst(const QString& of) {
        withReferences(of, [](QDialog& dialog) {
            chooseFirstRow(dialog);
            child<QPushButton>(dialog, "Delete").click();
        });
    }
    /// "von>nach type", as a second reader finds them.
    [[nodiscard]] QStringList stored() const {
        const QStringList ids = readColumn(path, u"Vokabular"_s, u"ID"_s);
        const QStringList words = readColumn(path, u"Vokabular"_s, u"Lang1_Main"_s);
        const QStringList from = readColumn(path, u"Referenzen"_s, u"von"_s);
        const QStringList to = readColumn(path, u"Referenzen"_s, u"nach"_s);
        const QStringList types = readColumn(path, u"Referenzen"_s, u"Typ"_s);
        QStringList all;
        for (qsizetype i = 0; i < types.size(); ++i)
            all.append(words.value(ids.indexOf(from[i])) + u'>' + words.value(ids.indexOf(to[i])) + u' ' +
                       types[i]);
        return all;
    }

    void chooseType(const QString& type) {
        child<QPushButton>(selection(), "Command2").click();
        child<QTabBar>(selection(), "tbsOptions").setCurrentIndex(7);
        auto& types = child<QListWidget>(selection(), "lstReferenzenLinks");
        const auto found = types.findItems(type, Qt::MatchExactly | Qt::MatchCaseSensitive);
        ASSERT_EQ(found.size(), 1) << type.toStdString();
        types.setCurrentItem(found.first());
        child<QPushButton>(selection(), "cmdAdd").click();
    }
    Trainer& trainer() { return program.app().trainer(); }
    void stepTo(const QString& expression) {
        const auto& shown = child<FlexGrid>(trainer(), "VokabelnGrid");
        for (int i = 0; i < list().Rows() && shown.TextMatrix(QuestionRow, 0) != expression; ++i)
            child<QPushButton>(trainer(), "Command3").click();
        ASSERT_EQ(shown.TextMatrix(QuestionRow, 0), expression);
    }

    TestProgram program;
    const QString path = program.path(u"references.lmt"_s);
};

INSTANTIATE_TEST_SUITE_P(Languages, References, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(References, LiveOnOverTwoRuns) {
    create(u"Haus"_s, u"schön"_s, seeAlso());
    create(u"Haus"_s, u"gehen"_s, u"Reimt sich auf"_s);
    EXPECT_EQ(stored(), (QStringList{u"Haus>schön "_s + seeAlso(), u"Haus>gehen Reimt sich auf"_s}));
    EXPECT_EQ(shownReferences(u"schön"_s), QStringList{seeAlso() + u": Haus"_s}) << "from the other side";

    changeFirst(u"schön"_s, opposite());
    EXPECT_EQ(stored().first(), u"Haus>schön "_s + opposite()) << "in the direction of its creation";

    startAgain();
    EXPECT_EQ(shownReferences(u"gehen"_s), QStringList{u"Reimt sich auf: Haus"_s});
    removeFirst(u"gehen"_s);
    EXPECT_EQ(stored(), QStringList{u"Haus>schön "_s + opposite()});
    EXPECT_EQ(shownReferences(u"Haus"_s), QStringList{opposite() + u": schön"_s});
    EXPECT_EQ(shownReferences(u"ja"_s), QStringList());
}

TEST_P(References, OwnTypeFiltersTheSelection) {
    create(u"Haus"_s, u"gehen"_s, u"Reimt sich auf"_s);
    startAgain();
    chooseType(u"Reimt sich auf"_s);
    run();
    EXPECT_EQ(listed(), QStringList{u"Haus"_s}) << "the entry that the reference leaves";
    chooseType(seeAlso());
    program.prompts.expectExclamation(
        text(u"Es wurden keine Einträge gefunden."_s, u"There were no entries found."_s));
    run();
}

TEST_P(References, ShowInTheTrainersThirdPanel) {
    create(u"Haus"_s, u"schön"_s, seeAlso());
    create(u"gehen"_s, u"Haus"_s, u"Reimt sich auf"_s);
    startAgain();
    program.click("Command2");
    child<QTabBar>(trainer(), "TabStrip1").setCurrentIndex(2);
    stepTo(u"Haus"_s);
    child<QPushButton>(trainer(), "Command3").click(); // its solution
    auto& types = child<QComboBox>(trainer(), "ReferenzenCombo");
    auto& shown = child<FlexGrid>(trainer(), "MSFlexGrid1");
    ASSERT_EQ(types.count(), 2);
    for (int i = 0; i < 2; ++i) {
        types.setCurrentIndex(i);
        EXPECT_EQ(shown.TextMatrix(0, 0), types.itemText(i));
        const QString other = types.itemText(i) == seeAlso() ? u"schön"_s : u"gehen"_s;
        EXPECT_EQ(shown.TextMatrix(1, 0), other);
    }
}

TEST_P(References, OfSimilarMeaningAreANearMiss) {
    create(u"Haus"_s, u"gehen"_s, similar());
    program.click("Command2");
    child<QToolButton>(trainer(), "Toolbar1_Button8").click();
    child<QToolButton>(trainer(), "Toolbar1_Button10").click();
    const auto answer = [this](const QString& typed) {
        program.prompts.expectDialog("InputFenster", [typed](QDialog& form) {
            child<QLineEdit>(form, "Text1").setText(typed);
            child<QPushButton>(form, "OK").click();
        });
    };
    answer(u"yes"_s);
    child<QPushButton>(trainer(), "Command3").click();
    answer(u"go"_s); // for "Haus": the word that the reference leads to
    program.prompts.expect({.icon = QMessageBox::Question,
                            .text = ExpectedText::containing(similar()),
                            .answer = QMessageBox::Yes});
    child<QPushButton>(trainer(), "Command3").click();
    EXPECT_EQ(trainer().AnzahlRichtig, 2);
}

} // namespace
} // namespace lingomat
