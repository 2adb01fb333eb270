#include "Collation.h"
#include "TestContext.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

QStringList sorted(QStringList texts) {
    const QCollator collator = interfaceCollator();
    std::stable_sort(texts.begin(), texts.end(), collator);
    return texts;
}

} // namespace

TEST(Collation, UmlautsStandBesideTheirLetter) {
    for (const QString& name : {u"De"_s, u"En"_s}) {
        const InterfaceLanguage language(name);
        EXPECT_EQ(sorted({u"Zug"_s, u"Öl"_s, u"Ähre"_s, u"Ofen"_s, u"Apfel"_s}),
                  QStringList({u"Ähre"_s, u"Apfel"_s, u"Ofen"_s, u"Öl"_s, u"Zug"_s}));
    }
}

TEST(Collation, CaseDoesNotCount) {
    EXPECT_EQ(interfaceCollator().compare(u"apple"_s, u"Apple"_s), 0);
    EXPECT_NE(interfaceCollator().compare(u"apple"_s, u"äpple"_s), 0);
}

TEST(NaturalOrder, NumbersCountByTheirValue) {
    struct Case {
        QString before;
        QString after;
    };
    const Case cases[] = {
        {u"I2"_s, u"I10"_s},
        {u"I9"_s, u"I10"_s},
        {u"Exc_1"_s, u"Exc_2"_s},
        {u"Exc_9"_s, u"Exc_10"_s},
        {u"1"_s, u"a"_s},
        {u""_s, u"I"_s},
        {u"I"_s, u"I0"_s},
        {u"I01"_s, u"I1"_s},
        {u"I1a2"_s, u"I1a10"_s},
        {u"I99999999999999999999998"_s, u"I99999999999999999999999"_s},
        {u"I9"_s, u"I99999999999999999999999"_s},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(naturallyBefore(c.before, c.after))
            << c.before.toStdString() << " < " << c.after.toStdString();
        EXPECT_FALSE(naturallyBefore(c.after, c.before))
            << c.after.toStdString() << " < " << c.before.toStdString();
    }
    EXPECT_FALSE(naturallyBefore(u"I1", u"I1"));
}

} // namespace lingomat
