#include "SelectionBench.h"

#include "frmSelectAuswahl.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class LessonName : public testing::Test {
protected:
    explicit LessonName(const QString& language = u"En"_s) : bench(language) {
        bench.loadWith({{.main1 = u"x"_s}});
        bench.form.show();
        store(u"Animals"_s, u"dog"_s);
        store(u"Plants"_s, u"tree"_s);
        name().clearEditText();
        bench.click("Command2");
    }
    void store(const QString& lesson, const QString& main) {
        name().setEditText(lesson);
        bench.type("Lang1Main", main);
        bench.context.prompts.expectYesNo(ExpectedText::anything(), true);
        bench.click("cmdSpeichern");
    }
    [[nodiscard]] QComboBox& name() { return child<QComboBox>(bench.form, "cmbName"); }
    void expectName(const QString& text) {
        bench.context.prompts.expectDialog("frmSelectAuswahl", [text](QDialog& dialog) {
            child<QComboBox>(dialog, "Combo1").clearEditText();
            QTest::keyClicks(child<QComboBox>(dialog, "Combo1").lineEdit(), text);
            child<QPushButton>(dialog, "cmdClose").click();
        });
    }

    SelectionBench bench;
};

class GermanLessonName : public LessonName {
protected:
    GermanLessonName() : LessonName(u"De"_s) {}
};

TEST_F(LessonName, BothMenuEntriesOfferTheLessons) {
    for (const char* entry : {"mnAuswahlNeu", "mnAuswahlOpen"}) {
        bench.context.prompts.expectDialog("frmSelectAuswahl", [](QDialog& dialog) {
            const auto& box = child<QComboBox>(dialog, "Combo1");
            EXPECT_EQ(box.count(), 2);
            EXPECT_EQ(box.itemText(0), u"Animals"_s);
            EXPECT_EQ(box.itemText(1), u"Plants"_s);
            EXPECT_EQ(box.currentText(), QString());
            dialog.reject();
        });
        bench.trigger(entry);
    }
}

TEST_F(LessonName, ExistingLessonIsRecalledAtOnce) {
    expectName(u"Plants"_s);
    bench.trigger("mnAuswahlOpen");
    EXPECT_EQ(name().currentText(), u"Plants"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"tree"_s);
    EXPECT_TRUE(child<QPushButton>(bench.form, "cmdLoeschen").isEnabled());
}

TEST_F(LessonName, LessonThatIsShownIsRecalledOnceMore) {
    name().setEditText(u"Plants"_s);
    bench.type("Lang1Main", u"flower"_s);
    expectName(u"Plants"_s);
    bench.trigger("mnAuswahlOpen");
    EXPECT_EQ(bench.text("Lang1Main"), u"tree"_s);
}

TEST_F(LessonName, NewNameEnablesSaving) {
    bench.type("Lang1Main", u"rock"_s);
    expectName(u"Stones"_s);
    bench.trigger("mnAuswahlNeu");
    EXPECT_EQ(name().currentText(), u"Stones"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"rock"_s);
    EXPECT_TRUE(child<QPushButton>(bench.form, "cmdSpeichern").isEnabled());
    EXPECT_FALSE(child<QPushButton>(bench.form, "cmdLoeschen").isEnabled());
}

TEST_F(LessonName, ClosedByEscapeChangesNothing) {
    name().setEditText(u"Plants"_s);
    bench.context.prompts.expectDialog("frmSelectAuswahl", [](QDialog& dialog) {
        QTest::keyClicks(child<QComboBox>(dialog, "Combo1").lineEdit(), u"Animals"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    bench.trigger("mnAuswahlOpen");
    EXPECT_EQ(name().currentText(), u"Plants"_s);
    EXPECT_EQ(bench.text("Lang1Main"), u"tree"_s);
}

TEST_F(LessonName, ReturnTakesTheNameAsItWasTyped) {
    bench.context.prompts.expectDialog("frmSelectAuswahl", [](QDialog& dialog) {
        QLineEdit* edit = child<QComboBox>(dialog, "Combo1").lineEdit();
        QTest::keyClicks(edit, u"plants"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    bench.trigger("mnAuswahlNeu");
    EXPECT_EQ(name().currentText(), u"plants"_s);
    EXPECT_EQ(bench.text("Lang1Main"), QString());
}

TEST_F(LessonName, LongNameIsCutWithABeep) {
    frmSelectAuswahl dialog(bench.context.prompts, {});
    child<QComboBox>(dialog, "Combo1").setEditText(QString(101, u'x'));
    EXPECT_EQ(dialog.name(), QString(100, u'x'));
    EXPECT_EQ(bench.context.prompts.beeps(), 1);
}

TEST_F(LessonName, Texts) {
    frmSelectAuswahl dialog(bench.context.prompts, {});
    EXPECT_EQ(dialog.objectName(), u"frmSelectAuswahl"_s);
    EXPECT_EQ(dialog.windowTitle(), u"Name of Lesson"_s);
    EXPECT_EQ(child<QLabel>(dialog, "Label1").text(),
              u"Please select a name from the combo box, or type in a new name."_s);
    EXPECT_EQ(child<QLabel>(dialog, "Label2").text(), u"Lesson:"_s);
    EXPECT_EQ(child<QPushButton>(dialog, "cmdClose").text(), u"OK"_s);
}

TEST_F(GermanLessonName, Texts) {
    frmSelectAuswahl dialog(bench.context.prompts, {});
    EXPECT_EQ(dialog.windowTitle(), u"Name der Lektion"_s);
    EXPECT_EQ(child<QLabel>(dialog, "Label1").text(),
              u"Bitte vorhandenen Namen aus der Klappbox auswählen, oder einen neuen Namen eingeben."_s);
    EXPECT_EQ(child<QLabel>(dialog, "Label2").text(), u"Lektion:"_s);
    EXPECT_EQ(child<QPushButton>(dialog, "cmdClose").text(), u"OK"_s);
}

} // namespace
} // namespace lingomat
