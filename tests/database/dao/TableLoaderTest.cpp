// Filling a new database: rows as they are, all of them or none.

#include "TableLoader.h"
#include "EngineTest.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace dao {
namespace {

class Loader : public EngineTest {
protected:
    /// ID, Main, Typ, Score, VID.
    std::vector<Value> row(const Value& key, const Value& text) { return {key, text, u"x"_s, 3, 7}; }
};

TEST_F(Loader, KeepsKeysNullsAndEmptyTexts) {
    TableLoader loader(database, u"wort"_s);
    EXPECT_EQ(loader.fieldNames(), QStringList({u"ID"_s, u"Main"_s, u"Typ"_s, u"Score"_s, u"VID"_s}));
    loader.add({17, Value(), QString(), Value(), -1});
    Recordset rows = words();
    EXPECT_EQ(rows.field(0), Value(17));
    EXPECT_TRUE(rows.field(1).isNull());
    EXPECT_EQ(rows.field(2), Value(QString())) << "though the field does not take it otherwise";
    EXPECT_TRUE(rows.field(3).isNull()) << "not the default";
    EXPECT_EQ(rows.field(4), Value(-1));

    rows.AddNew();
    rows.Update();
    rows.setBookmark(rows.LastModified());
    EXPECT_EQ(rows.field(0), Value(18)) << "numbers go on behind the highest";
}

TEST_F(Loader, ChecksTypesSizesAndKeys) {
    TableLoader loader(database, u"Wort"_s);
    EXPECT_EQ(errorOf([&] { loader.add(row(1, QString(11, u'x'))); }), 3163);
    EXPECT_EQ(errorOf([&] { loader.add({1, Value(), Value(), 40000, 1}); }), 6);
    EXPECT_EQ(errorOf([&] { loader.add({1, Value(), Value(), u"x"_s, 1}); }), 3421);
    loader.add(row(1, u"a"_s));
    EXPECT_EQ(errorOf([&] { loader.add(row(1, u"b"_s)); }), 3022);
    EXPECT_EQ(stored(), u"a"_s);
    EXPECT_EQ(errorOf([&] { TableLoader other(database, u"Nichts"_s); }), 3265);
}

TEST_F(Loader, BatchIsNotInTheFileBeforeItIsCommitted) {
    {
        WriteBatch batch(database);
        addWords({u"a"_s, u"b"_s});
        TableLoader(database, u"Wort"_s).add(row(9, u"c"_s));
        EXPECT_EQ(stored(), QString());
        batch.commit();
        EXPECT_EQ(stored(), u"a b c"_s);
    }
    addWords({u"d"_s});
    EXPECT_EQ(stored(), u"a b c d"_s);
}

TEST_F(Loader, BatchThatIsNotCommittedIsTakenBack) {
    {
        const WriteBatch batch(database);
        addWords({u"a"_s, u"b"_s});
    }
    EXPECT_EQ(stored(), QString());
    addWords({u"c"_s});
    EXPECT_EQ(stored(), u"c"_s);
}

TEST_F(Loader, BatchOutlivesAClosedDatabase) {
    {
        const WriteBatch batch(database);
        addWords({u"a"_s});
        database.Close();
    }
    EXPECT_EQ(stored(), QString());
}

} // namespace
} // namespace dao
