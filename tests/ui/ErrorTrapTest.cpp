#include "ErrorTrap.h"
#include "Globals.h"
#include "TestContext.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

/// The only message of `act`.
Message messageOf(const std::function<void(Prompts&)>& act) {
    class Recorder final : public Prompts {
    public:
        QList<Message> shown;
        QMessageBox::StandardButton message(QWidget*, const Message& message) override {
            shown.append(message);
            return QMessageBox::Ok;
        }
        int exec(QDialog&) override { return 0; }
        std::optional<QString> openFile(QWidget*, const FileDialogRequest&) override { return {}; }
        std::optional<QString> saveFile(QWidget*, const FileDialogRequest&) override { return {}; }
        void beep() override {}
    };
    Recorder recorder;
    act(recorder);
    EXPECT_EQ(recorder.shown.size(), 1);
    return recorder.shown.value(0);
}

} // namespace

TEST(ErrorBox, ShowsTheStoredTextAndNotItsArgument) {
    const InterfaceLanguage language(u"En"_s);
    LastErrorText = u"No current record."_s;
    const Message message = messageOf([](Prompts& prompts) { FehlerAusgabe(prompts, u"something else"_s); });
    EXPECT_EQ(message.text, u"The following error occured: \rNo current record."_s);
    EXPECT_EQ(message.icon, QMessageBox::Critical);
    EXPECT_EQ(message.buttons, QMessageBox::Ok);
}

TEST(ErrorBox, SpeaksGermanInTheGermanInterface) {
    const InterfaceLanguage language(u"De"_s);
    LastErrorText = u"No current record."_s;
    EXPECT_EQ(messageOf([](Prompts& prompts) { FehlerAusgabe(prompts, {}); }).text,
              u"Es trat folgender Fehler auf: \rNo current record."_s);
}

TEST(ErrorBox, WithoutAStoredTextIsGermanInBothLanguages) {
    for (const QString& name : {u"En"_s, u"De"_s}) {
        const InterfaceLanguage language(name);
        LastErrorText.clear();
        const QString text = messageOf([](Prompts& prompts) { FehlerAusgabe(prompts, u"argument"_s); }).text;
        EXPECT_TRUE(text.endsWith(u"Es trat ein interner Fehler auf!"_s)) << text.toStdString();
    }
}

TEST(ErrorTrap, StoresAndShowsTheDescription) {
    TestContext context;
    context.prompts.expectError(u"No current record."_s);
    const bool done = trapped(context.prompts, [] {
        throw dao::Error(dao::ErrorNumber::NoCurrentRecord, u"No current record."_s);
    });
    EXPECT_FALSE(done);
    EXPECT_EQ(LastErrorText, u"No current record."_s);
}

TEST(ErrorTrap, PassesOverWhatHasBeenReported) {
    TestContext context;
    LastErrorText = u"as it was"_s;
    EXPECT_FALSE(trapped(context.prompts, [] { throw dao::alreadyReported(); }));
    EXPECT_EQ(LastErrorText, u"as it was"_s);
}

TEST(ErrorTrap, AStepThatSucceedsSaysNothing) {
    TestContext context;
    EXPECT_TRUE(trapped(context.prompts, [] {}));
    EXPECT_TRUE(LastErrorText.isEmpty());
}

TEST(ErrorTrap, CatchesExceptionsOfAnyKind) {
    TestContext context;
    context.prompts.expectError(u"größer als gedacht"_s);
    EXPECT_FALSE(trapped(context.prompts, [] { throw std::runtime_error("größer als gedacht"); }));

    context.prompts.expectErrorContaining(u"Es trat ein interner Fehler auf!"_s);
    EXPECT_FALSE(trapped(context.prompts, [] { throw 42; }));
    EXPECT_TRUE(LastErrorText.isEmpty());

    context.prompts.expectError(u"Out of memory"_s);
    EXPECT_FALSE(trapped(context.prompts, [] { throw std::bad_alloc(); }));
}

TEST(Prompts, ShorthandsHaveTheirIcons) {
    EXPECT_EQ(messageOf([](Prompts& p) { p.information(nullptr, u"text"_s); }).icon,
              QMessageBox::Information);
    EXPECT_EQ(messageOf([](Prompts& p) { p.exclamation(nullptr, u"text"_s); }).icon, QMessageBox::Warning);
    EXPECT_EQ(messageOf([](Prompts& p) { p.critical(nullptr, u"text"_s); }).icon, QMessageBox::Critical);
}

TEST(Prompts, AYesNoQuestionDefaultsToNo) {
    const Message question = messageOf([](Prompts& p) { EXPECT_FALSE(p.yesNo(nullptr, u"Really?"_s)); });
    EXPECT_EQ(question.icon, QMessageBox::Question);
    EXPECT_EQ(question.buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(question.defaultButton, QMessageBox::No);
}

} // namespace lingomat
