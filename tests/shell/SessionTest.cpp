#include "TestProgram.h"

#include "ErrorTrap.h"
#include "Globals.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

/// A program without a start, whose session a test opens by hand.
class Session : public testing::Test {
protected:
    Session() { program.make(); }
    void openFile(const TestDatabase& database) {
        const QString file = program.path(u"a.lmt"_s);
        writeDatabase(file, database);
        program.app().state().DBHandler.Database = dao::DBEngine::OpenDatabase(file);
    }
    Form1& form() { return program.app().form1(); }

    TestProgram program;
};

TEST_F(Session, VersionsBelow3AreOld) {
    for (const int version : {0, 1, 2, 3, 4}) {
        openFile({.version = version});
        EXPECT_EQ(form().IsOldVersion(), version < 3) << version;
    }
    openFile({.withoutVersion = true});
    EXPECT_TRUE(form().IsOldVersion());
}

TEST_F(Session, VersionThatCannotBeReadRaises19001AfterOneMessage) {
    openFile({.missingTables = {u"Vokabular"_s}});
    program.prompts.expectErrorContaining(u"Vokabular"_s);
    try {
        (void)form().IsOldVersion();
        FAIL() << "nothing was raised";
    } catch (const dao::Error& error) {
        EXPECT_EQ(error.Number(), dao::ErrorNumber::AlreadyReported);
    }
}

TEST_F(Session, LanguageSettingsTakeAllTenTextsOver) {
    openFile({.languages = u"Lang1= Deutsch @Lang2= Englisch "_s});
    ASSERT_TRUE(form().SetLanguageSettings());
    const LanguageFields expected{u"Deutsch"_s,      u"Englisch"_s,        u"Lang1_Prefix"_s, u"Lang1_Main"_s,
                                  u"Lang1_Suffix"_s, u"Lang1_Kommentar"_s, u"Lang2_Prefix"_s, u"Lang2_Main"_s,
                                  u"Lang2_Suffix"_s, u"Lang2_Kommentar"_s};
    EXPECT_EQ(static_cast<const LanguageFields&>(program.app().state()), expected);
}

TEST_F(Session, LanguageSettingsChangeNothingWhenTheFileIsNotValid) {
    openFile({});
    ASSERT_TRUE(form().SetLanguageSettings());
    const LanguageFields before = program.app().state();
    openFile({.languages = u"Deutsch"_s});
    EXPECT_FALSE(form().SetLanguageSettings());
    EXPECT_EQ(static_cast<const LanguageFields&>(program.app().state()), before);
}

TEST_F(Session, ExtraSignsInALanguageNameFollowTheScan) {
    openFile({.languages = u"Lang1=a=b@Lang2=c"_s});
    ASSERT_TRUE(form().SetLanguageSettings());
    EXPECT_EQ(program.app().state().Lang1Name, QString());
    EXPECT_EQ(program.app().state().Lang2Name, u"b"_s);
}

TEST_F(Session, InternalErrorIsGermanInTheEnglishInterfaceToo) {
    LastErrorText.clear();
    program.prompts.expectCritical(u"The following error occured: \rEs trat ein interner Fehler auf!");
    FehlerAusgabe(program.prompts, u"not shown"_s);
}

} // namespace
} // namespace lingomat
