// What a field takes, and what it refuses.

#include "EngineTest.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace dao {

class FieldLimits : public EngineTest {
protected:
    /// Error of setting one field of a new row; nothing where it is taken.
    [[nodiscard]] std::optional<int> set(const QString& field, const Value& value) {
        Recordset recordset = words();
        recordset.AddNew();
        return errorOf([&] { recordset.setField(field, value); });
    }
    /// A text as it comes back from a file that was closed and opened again.
    [[nodiscard]] QString roundTrip(const QString& text) {
        addWords({text});
        database.Close();
        database = DBEngine::OpenDatabase(file());
        Recordset recordset = words();
        recordset.MoveLast();
        return recordset.field(u"Main"_s).toText();
    }
};

TEST_F(FieldLimits, ATextHasAtMostItsFieldsSizeInUnits) {
    EXPECT_EQ(set(u"Main"_s, QString(10, u'x')), std::nullopt);
    EXPECT_EQ(set(u"Main"_s, QString(11, u'x')), 3163);
    EXPECT_EQ(set(u"Main"_s, QString(10, u'猫')), std::nullopt);
    EXPECT_EQ(set(u"Main"_s, QString(u"😀"_s).repeated(5)), std::nullopt);
    EXPECT_EQ(set(u"Main"_s, QString(u"😀"_s).repeated(5) + u"a"_s), 3163);
    EXPECT_EQ(set(u"Main"_s, QString(1000000, u'x')), 3163);
    EXPECT_EQ(set(u"Main"_s, qint64{12345678901}), 3163);
    EXPECT_EQ(set(u"Main"_s, 1234567890), std::nullopt);
}

TEST_F(FieldLimits, TheErrorNamesTheField) {
    Recordset recordset = words();
    recordset.AddNew();
    EXPECT_TRUE(
        descriptionOf([&] { recordset.setField(u"Main"_s, QString(11, u'x')); }).contains(u"'Wort.Main'"_s));
    EXPECT_TRUE(descriptionOf([&] { recordset.setField(u"Typ"_s, u""_s); }).contains(u"'Wort.Typ'"_s));
}

TEST_F(FieldLimits, TheEmptyTextNeedsPermission) {
    EXPECT_EQ(set(u"Main"_s, u""_s), std::nullopt);
    EXPECT_EQ(set(u"Typ"_s, u""_s), 3315);
    EXPECT_EQ(set(u"Typ"_s, QString()), 3315);
    EXPECT_EQ(set(u"Typ"_s, u" "_s), std::nullopt);
    EXPECT_EQ(set(u"Typ"_s, Value()), std::nullopt) << "Null is no text";
}

TEST_F(FieldLimits, AnIntegerHas16Bits) {
    for (const int number : {0, 32767, -32768})
        EXPECT_EQ(set(u"Score"_s, number), std::nullopt) << number;
    for (const int number : {32768, -32769, 65536, std::numeric_limits<int>::max()})
        EXPECT_EQ(set(u"Score"_s, number), 6) << number;
}

TEST_F(FieldLimits, ALongHas32Bits) {
    for (const qint64 number : {qint64{0}, qint64{2147483647}, qint64{-2147483648}})
        EXPECT_EQ(set(u"VID"_s, number), std::nullopt) << number;
    for (const qint64 number : {qint64{2147483648}, qint64{-2147483649}, std::numeric_limits<qint64>::max()})
        EXPECT_EQ(set(u"VID"_s, number), 6) << number;
    EXPECT_EQ(set(u"ID"_s, qint64{2147483648}), 6);
}

TEST_F(FieldLimits, ANumberFieldTakesWhatSpellsANumber) {
    for (const QString& text : {u"17"_s, u" 17 "_s, u"-3"_s})
        EXPECT_EQ(set(u"Score"_s, text), std::nullopt) << text.toStdString();
    for (const QString& text : {u""_s, u" "_s, u"x"_s, u"17x"_s, u"1 7"_s, u"猫"_s, u"0x11"_s, u"\0"_s})
        EXPECT_EQ(set(u"Score"_s, text), 3421) << text.toStdString();
    EXPECT_EQ(set(u"Score"_s, u"32768"_s), 6);
    EXPECT_EQ(set(u"Score"_s, 12.0), std::nullopt);
    EXPECT_EQ(set(u"Score"_s, 1e300), 6);
}

TEST_F(FieldLimits, ARefusedValueLeavesTheRowInWork) {
    Recordset recordset = words();
    recordset.AddNew();
    recordset.setField(u"Main"_s, u"ok"_s);
    EXPECT_EQ(errorOf([&] { recordset.setField(u"Main"_s, QString(11, u'x')); }), 3163);
    EXPECT_EQ(errorOf([&] { recordset.setField(u"Score"_s, 40000); }), 6);
    EXPECT_EQ(main(recordset), u"ok");
    recordset.Update();
    EXPECT_EQ(RawFile(file()).lines(u"SELECT Main, Score FROM Wort"_s), QStringList{u"ok | 6"_s});
}

TEST_F(FieldLimits, DefaultsStandWithoutBeingWritten) {
    Recordset recordset = words();
    recordset.AddNew();
    EXPECT_EQ(recordset.field(u"Score"_s), Value(6)) << "from the start";
    EXPECT_EQ(recordset.field(u"Typ"_s), Value(u"neu"_s));
    recordset.Update();
    EXPECT_EQ(RawFile(file()).lines(u"SELECT * FROM Wort"_s), QStringList{u"1 | NULL | neu | 6 | NULL"_s})
        << "an empty default is none";
}

TEST_F(FieldLimits, ADefaultGivesWayToNull) {
    Recordset recordset = words();
    recordset.AddNew();
    recordset.setField(u"Typ"_s, Value());
    recordset.Update();
    EXPECT_EQ(RawFile(file()).cell(u"SELECT Typ FROM Wort"_s), u"NULL");
}

TEST_F(FieldLimits, AnEntrysOwnNumberCannotBeEdited) {
    addWords({u"a"_s});
    Recordset recordset = words();
    recordset.Edit();
    EXPECT_EQ(errorOf([&] { recordset.setField(u"ID"_s, 5); }), 3164);
    EXPECT_EQ(recordset.field(0), Value(1));
}

TEST_F(FieldLimits, ATextComesBackAsItWas) {
    for (const QString& text :
         {u""_s,       u" a "_s,     u"l'eau"_s,  u"\"x\""_s, u"100%_[*]"_s, u"a;b@c"_s,   u"猫犬"_s,
          u"😀😁"_s,     u"e\u0301"_s, u"\n\t\r"_s, u"a\0b"_s,  u"\0"_s,       u"\uFEFFx"_s, u"x\uFEFF"_s,
          u"\uFEFF"_s, u"\uFFFF"_s,  u"\u200B"_s, u"עברית"_s, u"[x]"_s,      u"--"_s})
        EXPECT_EQ(roundTrip(text), text) << text.toStdString();
}

TEST_F(FieldLimits, HalfACharacterBecomesTheReplacementSign) {
    const QString half = u"a"_s + QChar(0xD83D) + u"b"_s;
    EXPECT_EQ(roundTrip(half), u"a\uFFFDb");
}

// Half a character is no wildcard, whatever it is turned into on its way to the file.
TEST_F(FieldLimits, HalfACharacterInAPatternMatchesNothingElse) {
    addWords({u"axb"_s});
    Recordset recordset = words();
    recordset.FindFirst(u"Main LIKE 'a"_s + QChar(0xD83D) + u"*'"_s);
    EXPECT_TRUE(recordset.NoMatch());
}

} // namespace dao
