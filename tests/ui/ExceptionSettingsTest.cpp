#include "ExceptionSettings.h"

#include "Globals.h"
#include "InternalCharacters.h"
#include "TestContext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

void store(SettingsStore& settings, int number, const QString& pair) {
    settings.SaveSetting(AppName(), u"Exceptions"_s, u"Exc_%1"_s.arg(number), pair);
}

} // namespace

TEST(ExceptionSettings, AnEmptySectionGivesNoPair) {
    TestContext context;
    GetExceptions(context.state.Exceptions, context.settings);
    EXPECT_EQ(context.state.Exceptions.ExceptionCount(), 0);
}

TEST(ExceptionSettings, StoredPairsAreReadUpToTheGap) {
    TestContext context;
    store(context.settings, 1, u"!¡"_s);
    store(context.settings, 2, u"?¿"_s);
    store(context.settings, 4, u"ab"_s);
    EqualCharacters& pairs = context.state.Exceptions;
    GetExceptions(pairs, context.settings);
    EXPECT_EQ(pairs.ExceptionCount(), 2);
    EXPECT_EQ(pairs.WorkInException(u"?que? a!"_s), u"¿que¿ a¡");
}

TEST(ExceptionSettings, PairsOfSpecialCharactersSurviveTheStore) {
    const QStringList values{u"= "_s, u"\\/"_s, u"\"'"_s, u"%;"_s, u"😀猫"_s, u",#"_s};
    TestContext context;
    for (int number = 1; number <= values.size(); ++number)
        store(context.settings, number, values.at(number - 1));
    EqualCharacters& pairs = context.state.Exceptions;
    GetExceptions(pairs, context.settings);
    ASSERT_EQ(pairs.ExceptionCount(), values.size());
    for (int number = 1; number <= values.size(); ++number)
        EXPECT_EQ(*pairs.left(number) + *pairs.right(number), values.at(number - 1));
}

TEST(ExceptionSettings, TenPairsAtTheStartAreTenThatNobodyUses) {
    TestContext context;
    for (int number = 1; number <= 10; ++number)
        store(context.settings, number, u"ab"_s);
    GetExceptions(context.state.Exceptions, context.settings);
    EXPECT_EQ(context.state.Exceptions.ExceptionCount(), 0);

    context.settings.DeleteSetting(AppName(), u"Exceptions"_s, u"Exc_10"_s);
    GetExceptions(context.state.Exceptions, context.settings);
    EXPECT_EQ(context.state.Exceptions.ExceptionCount(), 9);
}

TEST(ExceptionSettings, APairIsGivenByItsNumber) {
    TestContext context;
    store(context.settings, 1, u"!¡"_s);
    GetExceptions(context.state.Exceptions, context.settings);
    EXPECT_EQ(ReturnIteExceptionL(context.state.Exceptions, 1, context.prompts), u"!");
    EXPECT_EQ(ReturnIteExceptionR(context.state.Exceptions, 1, context.prompts), u"¡");
}

TEST(ExceptionSettings, ANumberWithoutPairIsToldAndGivesABlank) {
    for (const int number : {-1, 0, 1}) {
        TestContext english;
        english.prompts.expect({.text = u"ERROR in ReturnIteExceptionL"});
        english.prompts.expect({.text = u"ERROR in ReturnIteExceptionR"});
        EXPECT_EQ(ReturnIteExceptionL(english.state.Exceptions, number, english.prompts), u" ");
        EXPECT_EQ(ReturnIteExceptionR(english.state.Exceptions, number, english.prompts), u" ");
    }
    TestContext german(u"De"_s);
    german.prompts.expect({.text = u"FEHLER in ReturnIteExceptionL"});
    german.prompts.expect({.text = u"FEHLER in ReturnIteExceptionR"});
    EXPECT_EQ(ReturnIteExceptionL(german.state.Exceptions, 0, german.prompts), u" ");
    EXPECT_EQ(ReturnIteExceptionR(german.state.Exceptions, 0, german.prompts), u" ");
}

TEST(InternalCharacters, AreRefusedInGermanWhateverTheLanguage) {
    for (const QString& language : {u"En"_s, u"De"_s}) {
        TestContext context(language);
        context.prompts.expect(
            {.text = u"Die Zeichen '@' und ';' werden intern verwendet und dürfen nicht eingegeben werden!"});
        EXPECT_EQ(CheckForInternalCharacters(context.prompts, nullptr, u"a;b@"_s), 2);
    }
}

TEST(InternalCharacters, ATextWithoutThemPassesInSilence) {
    TestContext context;
    EXPECT_EQ(CheckForInternalCharacters(context.prompts, nullptr, u"Käse, 猫!"_s), 0);
    EXPECT_EQ(CheckForInternalCharacters(context.prompts, nullptr, {}), 0);
}
