#include "PackedList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace lingomat;

TEST(PackedList, EachSeparatorClosesAnItem) {
    const QString table[][2] = {
        {{}, {}},
        {u"a@b@"_s, u"a;b;"_s},
        {u"x@y"_s, u"x;"_s}, // what stands behind the last separator is dropped
        {u"xy"_s, {}},
        {u"@"_s, u";"_s},
        {u"@@a@"_s, u";;a;"_s},
        {u" a @"_s, u" a ;"_s},
        {u"Küche@Κουζίνα@кухня@台所@😀@"_s, u"Küche;Κουζίνα;кухня;台所;😀;"_s},
    };
    for (const auto& [inFile, inList] : table)
        EXPECT_EQ(ArrayDBToListe(inFile), inList) << inFile.toStdString();
}

TEST(PackedList, TheMirrorGoesBack) {
    EXPECT_EQ(ArrayListeToDB(u"a;b;"_s), u"a@b@");
    EXPECT_EQ(ArrayListeToDB(u"x;y"_s), u"x@");
    EXPECT_EQ(ArrayListeToDB(u"xy"_s), QString());
    EXPECT_EQ(ArrayListeToDB(QString()), QString());
    EXPECT_EQ(ArrayListeToDB(ArrayDBToListe(u"台所@Küche@"_s)), u"台所@Küche@");
}

TEST(PackedList, ItemByNumber) {
    struct {
        QString text;
        int index;
        QString item;
    } const table[] = {
        {u"a;b;"_s, 1, u"a"_s},
        {u"a;b;"_s, 2, u"b"_s},
        {u"a;b;"_s, 3, {}},
        {u"a;b;"_s, 0, {}},
        {u"a;b;"_s, -1, {}},
        {u"a;b"_s, 2, {}}, // an unterminated tail is no item
        {u"ab"_s, 1, {}},
        {{}, 1, {}},
        {u" a ; b c ;"_s, 2, u"b c"_s},
        {u";;c;"_s, 2, {}},
        {u";;c;"_s, 3, u"c"_s},
        {u"кухня;台所;😀;"_s, 3, u"😀"_s},
    };
    for (const auto& [text, index, item] : table)
        EXPECT_EQ(ArrayGetItes(text, index, u';'), item) << text.toStdString() << index;
    EXPECT_EQ(ArrayGetItes(u"a;@b@"_s, 2, u'@'), u"b");
}

TEST(PackedList, AllItems) {
    EXPECT_EQ(splitPacked({}), QStringList());
    EXPECT_EQ(splitPacked(u"tail"_s), QStringList());
    EXPECT_EQ(splitPacked(u"Verb;Nomen;"_s), QStringList({u"Verb"_s, u"Nomen"_s}));
    EXPECT_EQ(splitPacked(u"Verb;Nomen"_s), QStringList({u"Verb"_s}));
    EXPECT_EQ(splitPacked(u" a ;;"_s), QStringList({u" a "_s, QString()}));
}

TEST(ListContains, ComparesExactly) {
    const QStringList list{u"Verb"_s, u"Nomen"_s, u"Größe"_s};
    EXPECT_TRUE(ListContains(u"Verb"_s, list));
    EXPECT_TRUE(ListContains(u"Größe"_s, list));
    EXPECT_FALSE(ListContains(u"verb"_s, list));
    EXPECT_FALSE(ListContains(u"Verb "_s, list));
    EXPECT_FALSE(ListContains({}, list));
    EXPECT_FALSE(ListContains(u"Verb"_s, {}));
}
