#include "Globals.h"
#include "TestContext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {

TEST(Globals, EnglishTexts) {
    const InterfaceLanguage language(u"En"_s);
    EXPECT_TRUE(interfaceIsEnglish());
    EXPECT_EQ(KeinEintrag, u"<no entry>"_s);
    EXPECT_EQ(RefAbgeleitet, u"Derived from"_s);
    EXPECT_EQ(RefGegenteil, u"Opposite of"_s);
    EXPECT_EQ(RefSieheAuch, u"See also"_s);
    EXPECT_EQ(RefAndereBedeutung, u"Different meaning for expression in "_s);
    EXPECT_EQ(RefAehnlicheBedeutung, u"Similar meaning for expression in "_s);
}

TEST(Globals, AnyOtherLanguageIsGerman) {
    for (const QString& name : {u"De"_s, u"en"_s, u""_s}) {
        const InterfaceLanguage language(name);
        EXPECT_FALSE(interfaceIsEnglish());
        EXPECT_EQ(KeinEintrag, u"<kein Eintrag>"_s);
        EXPECT_EQ(RefAbgeleitet, u"Abgeleitet bzw. Grundform von"_s);
        EXPECT_EQ(RefGegenteil, u"Gegenteil von"_s);
        EXPECT_EQ(RefSieheAuch, u"Siehe auch"_s);
        EXPECT_EQ(RefAndereBedeutung, u"Andere Bedeutung für Ausdruck auf "_s);
        EXPECT_EQ(RefAehnlicheBedeutung, u"Ähnliche Bedeutung für Ausdruck auf "_s);
    }
}

TEST(Globals, NamesOfTheProgram) {
    EXPECT_EQ(ProductName(), u"Lingomat"_s);
    EXPECT_EQ(VersionText(), u"3.1A"_s);
    EXPECT_EQ(AppName(), u"LMT"_s);
}

} // namespace lingomat
