#include "TestContext.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// A form that closes by its one button.
class Form : public QDialog {
public:
    Form() {
        setObjectName(u"frmOptions"_s);
        auto* button = new QPushButton(u"OK"_s, this);
        button->setObjectName(u"cmdOK"_s);
        connect(button, &QPushButton::clicked, this, &QDialog::accept);
    }
};

} // namespace

TEST(ScriptedPrompts, AnswersWhatIsExpected) {
    ScriptedPrompts prompts;
    prompts.expectYesNo(u"Really?", true);
    prompts.expectYesNo(u"Really?", false);
    prompts.expectInformation(ExpectedText::containing(u"saved"_s));
    EXPECT_TRUE(prompts.yesNo(nullptr, u"Really?"_s));
    EXPECT_FALSE(prompts.yesNo(nullptr, u"Really?"_s));
    prompts.information(nullptr, u"It has been saved."_s);
    EXPECT_TRUE(prompts.isFinished());
}

TEST(ScriptedPrompts, AnUnexpectedPromptFailsWithItsText) {
    ScriptedPrompts prompts;
    EXPECT_NONFATAL_FAILURE(prompts.critical(nullptr, u"The disk is full."_s), "The disk is full.");
    EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(prompts.yesNo(nullptr, u"Really?"_s)), "Really?");
    EXPECT_NONFATAL_FAILURE(EXPECT_FALSE(prompts.openFile(nullptr, {.title = u"Which?"_s})), "Which?");
    Form form;
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(prompts.exec(form), QDialog::Rejected), "frmOptions");
}

TEST(ScriptedPrompts, ADifferentTextIconOrButtonFails) {
    ScriptedPrompts prompts;
    prompts.expectCritical(u"this");
    EXPECT_NONFATAL_FAILURE(prompts.critical(nullptr, u"that"_s), "\"this\"");
    prompts.expectCritical(u"this");
    EXPECT_NONFATAL_FAILURE(prompts.information(nullptr, u"this"_s), "critical");
    prompts.expectYesNo(u"this", true);
    EXPECT_NONFATAL_FAILURE(prompts.message(nullptr, {.icon = QMessageBox::Question,
                                                      .text = u"this"_s,
                                                      .buttons = QMessageBox::Yes | QMessageBox::No,
                                                      .defaultButton = QMessageBox::Yes}),
                            "default button");
    prompts.expect({.icon = QMessageBox::Information, .text = u"this", .answer = QMessageBox::Cancel});
    EXPECT_NONFATAL_FAILURE(prompts.information(nullptr, u"this"_s), "does not offer");
}

TEST(ScriptedPrompts, PromptsOutOfOrderFail) {
    ScriptedPrompts prompts;
    prompts.expectDialog("frmOptions", [](QDialog&) {});
    EXPECT_NONFATAL_FAILURE(prompts.information(nullptr, u"first"_s), "frmOptions");
    EXPECT_NONFATAL_FAILURE(prompts.verify(), "frmOptions");
}

TEST(ScriptedPrompts, StepsLeftOverFail) {
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts prompts;
            prompts.expectInformation(u"never said");
        },
        "never said");
}

TEST(ScriptedPrompts, WorksOnTheRealForm) {
    ScriptedPrompts prompts;
    Form form;
    prompts.expectDialog("frmOptions", [](QDialog& dialog) {
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(dialog.isModal());
        QTest::mouseClick(&child<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
    });
    EXPECT_EQ(prompts.exec(form), QDialog::Accepted);
    EXPECT_FALSE(form.isVisible());
}

TEST(ScriptedPrompts, AFormLeftOpenFails) {
    ScriptedPrompts prompts;
    Form form;
    prompts.expectDialog("frmOptions", [](QDialog&) {});
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(prompts.exec(form), QDialog::Rejected), "left open");
}

TEST(ScriptedPrompts, AStepThatThrowsFailsWithItsReason) {
    ScriptedPrompts prompts;
    Form form;
    prompts.expectDialog("frmOptions", [](QDialog& dialog) {
        dialog.hide();
        child<QPushButton>(dialog, "cmdCancel").click();
    });
    EXPECT_NONFATAL_FAILURE(prompts.exec(form), "No QPushButton \"cmdCancel\"");
}

TEST(ScriptedPrompts, FilesAreChosenOrNot) {
    ScriptedPrompts prompts;
    prompts.expectOpenFile(u"/tmp/a.lmt"_s);
    prompts.expectSaveFile({});
    EXPECT_EQ(prompts.openFile(nullptr, {.title = u"Open"_s, .filter = u"*.lmt"_s}), u"/tmp/a.lmt"_s);
    EXPECT_EQ(prompts.lastFileRequest().filter, u"*.lmt"_s);
    EXPECT_EQ(prompts.saveFile(nullptr, {}), std::nullopt);
}

TEST(ChildFinder, ListsTheNamesThatExist) {
    Form form;
    try {
        child<QPushButton>(form, "cmdCancel");
        FAIL() << "found what does not exist";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("cmdOK (QPushButton)"), std::string::npos) << error.what();
    }
    EXPECT_THROW(child<QLabel>(form, "cmdOK"), std::runtime_error) << "a button is no label";
    EXPECT_TRUE(hasChild(form, "cmdOK"));
    EXPECT_FALSE(hasChild(form, "cmdCancel"));
}

TEST(ChildFinder, PrefersTheFormToWindowsBelowIt) {
    Form form;
    Form below;
    below.setParent(&form, Qt::Dialog);
    EXPECT_EQ(child<QPushButton>(form, "cmdOK").parent(), &form);
    EXPECT_EQ(child<QPushButton>(below, "cmdOK").parent(), &below);
    below.setParent(nullptr);
}

} // namespace lingomat
