// Lessons over two runs of the program: stored, changed, recalled on the next day, deleted, and kept apart by
// the file they belong to.

#include "TestProgram.h"

#include "FlexGrid.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class Lessons : public testing::TestWithParam<QString> {
protected:
    Lessons() : program(GetParam()) {
        writeDatabase(first, {.entries = someEntries()});
        writeDatabase(second, {.entries = someEntries()});
        program.rememberDatabase(first);
        start();
    }

    [[nodiscard]] QString text(const QString& inGerman, const QString& inEnglish) const {
        return GetParam() == u"En"_s ? inEnglish : inGerman;
    }
    void start() {
        program.start();
        program.click("Command1");
    }
    void startAgain() {
        program.click("Command4");
        program.end();
        start();
    }
    void open(const QString& file) {
        program.prompts.expectOpenFile(file);
        program.choose("Datei_Open");
    }

    Form2& form() { return program.app().form2(); }
    void press(const char* button) {
        auto& found = child<QPushButton>(form(), button);
        ASSERT_TRUE(found.isEnabled()) << button;
        found.click();
    }
    QComboBox& name() { return child<QComboBox>(form(), "cmbName"); }
    void type(const QString& lesson) {
        name().clearEditText();
        for (const QChar letter : lesson)
            name().lineEdit()->insert(letter);
    }
    [[nodiscard]] QStringList offered() {
        QStringList all;
        for (int i = 0; i < name().count(); ++i)
            all.append(name().itemText(i));
        return all;
    }
    void choose(int tab, const char* list, const QString& value) {
        child<QTabBar>(form(), "tbsOptions").setCurrentIndex(tab);
        auto& left = child<QListWidget>(form(), list);
        const auto found = left.findItems(value, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << value.toStdString();
        left.setCurrentItem(found.first());
        press("cmdAdd");
    }
    void save(const QString& lesson) {
        program.prompts.expectYesNo(
            text(u"Soll die aktuelle Einstellung wirklich unter '"_s + lesson +
                     u"' als Lektion gespeichert werden?"_s,
                 u"Shall the current settings really be saved as a lesson with name '"_s + lesson + u"'?"_s),
            true);
        press("cmdSpeichern");
    }
    [[nodiscard]] QStringList run() {
        press("Command4");
        const FlexGrid& grid = program.app().liste().MSFlexGrid1();
        QStringList all;
        for (int row = 1; row < grid.Rows(); ++row)
            all.append(grid.TextMatrix(row, Liste::ColSprache1));
        return all;
    }

    TestProgram program;
    const QString first = program.path(u"first.lmt"_s);
    const QString second = program.path(u"second.lmt"_s);
};

INSTANTIATE_TEST_SUITE_P(Languages, Lessons, testing::Values(u"En"_s, u"De"_s),
                         [](const auto& parameter) { return parameter.param.toStdString(); });

TEST_P(Lessons, ComeBackInTheNextRun) {
    type(u"Schöne \"Dinge\" \\ 1"_s);
    choose(1, "lstBereichLinks", u"home"_s);
    save(u"Schöne \"Dinge\" \\ 1"_s);
    press("Command2");
    type(u"Verben"_s);
    child<QLineEdit>(form(), "Lang2Main").setText(u"g*"_s);
    save(u"Verben"_s);

    startAgain();
    EXPECT_EQ(offered(), (QStringList{u"Schöne \"Dinge\" \\ 1"_s, u"Verben"_s}));
    EXPECT_EQ(name().currentText(), QString());
    type(u"Schöne \"Dinge\" \\ 1"_s);
    EXPECT_EQ(run(), (QStringList{u"Haus"_s, u"schön"_s}));

    program.prompts.expectDialog("frmSelectAuswahl", [](QDialog& dialog) {
        child<QComboBox>(dialog, "Combo1").setCurrentIndex(1);
        child<QPushButton>(dialog, "cmdClose").click();
    });
    child<QAction>(form(), "mnAuswahlOpen").trigger();
    EXPECT_EQ(run(), QStringList{u"gehen"_s});
}

TEST_P(Lessons, AreChangedAndDeletedForGood) {
    type(u"A"_s);
    choose(1, "lstBereichLinks", u"home"_s);
    choose(1, "lstBereichLinks", u"talk"_s);
    save(u"A"_s);
    press("cmdRemoveAll");
    choose(1, "lstBereichLinks", u"talk"_s);
    save(u"A"_s);
    press("Command2");
    type(u"B"_s);
    save(u"B"_s);

    startAgain();
    type(u"A"_s);
    EXPECT_EQ(run(), (QStringList{u"ja"_s, u"Haus"_s})) << "as it was stored last";
    program.prompts.expectYesNo(text(u"Soll die Lektion 'A' wirklich gelöscht werden?"_s,
                                     u"Shall the lesson 'A' really be deleted?"_s),
                                true);
    press("cmdLoeschen");

    startAgain();
    EXPECT_EQ(offered(), QStringList{u"B"_s});
}

TEST_P(Lessons, AreThereWithTheirOwnFileOnly) {
    type(u"A"_s);
    save(u"A"_s);
    open(second);
    EXPECT_EQ(offered(), QStringList());
    EXPECT_EQ(name().currentText(), QString());
    type(u"B"_s);
    save(u"B"_s);
    open(first);
    EXPECT_EQ(offered(), QStringList{u"A"_s});

    ASSERT_TRUE(QDir().mkpath(program.path(u"moved"_s)));
    ASSERT_TRUE(QFile::copy(first, program.path(u"moved/first.lmt"_s)));
    open(program.path(u"moved/first.lmt"_s));
    EXPECT_EQ(offered(), QStringList{u"A"_s}) << "a file that was moved keeps its lessons";
}

} // namespace
} // namespace lingomat
