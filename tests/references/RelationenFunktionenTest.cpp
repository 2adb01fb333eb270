#include "RelationenFunktionen.h"
#include "ReferencesBench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

namespace {

const QStringList englishTypes{
    u"Derived from"_s,
    u"Opposite of"_s,
    u"See also"_s,
    u"Different meaning for expression in German"_s,
    u"Different meaning for expression in English"_s,
    u"Similar meaning for expression in German"_s,
    u"Similar meaning for expression in English"_s,
};

} // namespace

TEST(ReferenceTypes, OfADatabaseWithoutReferencesAreTheSevenFixedNames) {
    ReferencesBench bench;
    EXPECT_EQ(referenceTypes(bench.context.state), englishTypes);
}

TEST(ReferenceTypes, AreGermanInGerman) {
    ReferencesBench bench(u"De"_s);
    EXPECT_EQ(referenceTypes(bench.context.state),
              (QStringList{u"Abgeleitet bzw. Grundform von"_s, u"Gegenteil von"_s, u"Siehe auch"_s,
                           u"Andere Bedeutung für Ausdruck auf German"_s,
                           u"Andere Bedeutung für Ausdruck auf English"_s,
                           u"Ähnliche Bedeutung für Ausdruck auf German"_s,
                           u"Ähnliche Bedeutung für Ausdruck auf English"_s}));
}

TEST(ReferenceTypes, FollowTheFixedNamesOnceEach) {
    ReferencesBench bench;
    const QString a = bench.add(u"a"_s);
    const QString b = bench.add(u"b"_s);
    for (const char16_t* type : {u"Rhymes with", u"See also", u" Rhymes with ", u"rhymes with", u"   "})
        bench.addReference(a, b, QString::fromUtf16(type));
    EXPECT_EQ(referenceTypes(bench.context.state),
              englishTypes + QStringList({u"Rhymes with"_s, u"rhymes with"_s}));
}

TEST(ReferenceTypes, WithoutADatabaseAreTheFixedNames) {
    TestContext context;
    EXPECT_EQ(referenceTypes(context.state).first(), u"Derived from"_s);
}
