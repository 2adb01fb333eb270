#include "ReferenceRecords.h"

#include "ReferencesBench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(LiteralPattern, EscapesWhatLikeAndTheQuotesWouldRead) {
    EXPECT_EQ(literalPattern(u"See also"_s), u"'See also'"_s);
    EXPECT_EQ(literalPattern(u"a*b?c#d"_s), u"'a[*]b[?]c[#]d'"_s);
    EXPECT_EQ(literalPattern(u"[x]"_s), u"'[[]x]'"_s);
    EXPECT_EQ(literalPattern(u"l'un"_s), u"'l''un'"_s);
    EXPECT_EQ(literalPattern(QString()), u"''"_s);
}

TEST(FindReference, FindsFromEitherSideWhateverTheCaseOfTheType) {
    ReferencesBench bench;
    const QString a = bench.add(u"a"_s);
    const QString b = bench.add(u"b"_s);
    bench.addReference(a, b, u"See also"_s);
    dao::Recordset& references = bench.session().RecordsetReferenzen;
    EXPECT_TRUE(findReference(references, a, b, u"See also"_s));
    EXPECT_TRUE(findReference(references, b, a, u"see ALSO"_s));
    EXPECT_FALSE(findReference(references, a, a, u"See also"_s));
    EXPECT_FALSE(findReference(references, a, b, u"See"_s));
    EXPECT_FALSE(findReference(references, a, b, u"*"_s));
}

TEST(FindReference, TakesEveryCharacterOfATypeAsItself) {
    ReferencesBench bench;
    const QString a = bench.add(u"a"_s);
    const QString b = bench.add(u"b"_s);
    dao::Recordset& references = bench.session().RecordsetReferenzen;
    const QStringList types{u"any"_s,  u"a*"_s, u"[open"_s, u"what?"_s,      u"no. #"_s,
                            u"it's"_s, u"]"_s,  u"!"_s,     u"\"quoted\""_s, u"a[!b]-c"_s};
    for (const QString& type : types)
        bench.addReference(a, b, type);
    for (const QString& type : types) {
        ASSERT_TRUE(findReference(references, b, a, type)) << type.toStdString();
        EXPECT_EQ(references.field(u"Typ"_s).toText(), type);
    }
}

TEST(FindThisReference, PrefersTheExactText) {
    ReferencesBench bench;
    const QString a = bench.add(u"a"_s);
    const QString b = bench.add(u"b"_s);
    bench.addReference(a, b, u"see also"_s);
    bench.addReference(b, a, u"See also"_s);
    dao::Recordset& references = bench.session().RecordsetReferenzen;
    for (const QString& type : {u"See also"_s, u"see also"_s}) {
        ASSERT_TRUE(findThisReference(references, a, b, type));
        EXPECT_EQ(references.field(u"Typ"_s).toText(), type);
    }
    EXPECT_TRUE(findThisReference(references, a, b, u"SEE ALSO"_s));
    EXPECT_FALSE(findThisReference(references, a, b, u"Opposite of"_s));
}
