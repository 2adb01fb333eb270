// The names of the languages and of the expression fields, and the version of the file.

#include "SessionTest.h"

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

const QString NoLanguages = u"none"_s;

/// The two names joined by "|".
QString names(const QString& property) {
    const auto result = languageNames(property);
    return result ? result->first + u'|' + result->second : NoLanguages;
}

} // namespace

TEST(LanguageNames, OfTheProperty) {
    const QString table[][2] = {
        {u"Lang1=Deutsch@Lang2=Englisch"_s, u"Deutsch|Englisch"_s},
        {u"Lang1= Deutsch @Lang2=  Englisch  "_s, u"Deutsch|Englisch"_s},
        {u"Lang1=Deutsch@Lang2=Deutsch"_s, u"Deutsch|Deutsch"_s},
        {u"=A@=B"_s, u"A|B"_s},
        {u"x=日本語@y=עברית"_s, u"日本語|עברית"_s},
        {QString(), u"Spanisch|Deutsch"_s},
        {u"Lang1=A@Lang2=B@"_s, u"A|B"_s},
        {u"Lang1=A@Lang2=B@Lang3=C"_s, u"A|B"_s},
        {u"Lang1=A"_s, u"|A"_s},
        {u"Lang1=A@Lang2="_s, u"A|"_s},
        {u"="_s, u"|"_s},
    };
    for (const auto& [property, expected] : table)
        EXPECT_EQ(names(property), expected) << property.toStdString();
}

TEST(LanguageNames, AreSplitAtTheFirstSignThatParts) {
    const QString table[][2] = {
        {u"Lang1=a=b@Lang2=c"_s, u"|b"_s},    // the second "=" counts as that of the second language
        {u"Lang1=a@b@Lang2=c"_s, u"a@b|c"_s}, // the last "@" before the second "=" ends the first name
        {u"Lang1=a@Lang2=b@c"_s, u"a|b"_s},      {u"Lang1=a@Lang2=b=c"_s, u"a|c"_s},
        {u"Lang1=a@Lang2=@Lang3=c"_s, u"a|c"_s},
    };
    for (const auto& [property, expected] : table)
        EXPECT_EQ(names(property), expected) << property.toStdString();
}

TEST(LanguageNames, OfATextThatNoLanguageDatabaseHas) {
    for (const QString& property :
         {u"Deutsch"_s, u"Deutsch und Englisch"_s, u" "_s, u"@"_s, u"a@b"_s, u"@Lang1=a"_s, u"Lang1@=a"_s,
          u"a=b@c=d@e=f@"_s, u"=====@"_s, u"a=b=c=d@"_s})
        EXPECT_EQ(names(property), NoLanguages) << property.toStdString();
}

class Languages : public SessionTest {
protected:
    /// The file's languages as "name name / field field", field being that of the main part; "none" where it
    /// has none.
    QString languagesAfter(const QString& sql) {
        reopenAfter(sql);
        if (!handler.GetLanguages())
            return NoLanguages;
        return handler.Lang1Name + u' ' + handler.Lang2Name + u" / "_s + handler.Lang1MainField + u' ' +
               handler.Lang2MainField;
    }
};

TEST_F(Languages, OfANewFile) {
    EXPECT_TRUE(handler.GetLanguages());
    EXPECT_EQ(static_cast<const LanguageFields&>(handler),
              (LanguageFields{u"Deutsch"_s, u"Englisch"_s, u"Lang1_Prefix"_s, u"Lang1_Main"_s,
                              u"Lang1_Suffix"_s, u"Lang1_Kommentar"_s, u"Lang2_Prefix"_s, u"Lang2_Main"_s,
                              u"Lang2_Suffix"_s, u"Lang2_Kommentar"_s}));
    EXPECT_EQ(handler.GetDBVersion(), 3);
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(Languages, OfAVersionBefore2NameTheFields) {
    EXPECT_EQ(languagesAfter(u"UPDATE lmt_properties SET value = 1 WHERE name = 'DBVersion'"_s),
              u"Deutsch Englisch / Deutsch_Main Englisch_Main");
    EXPECT_EQ(handler.Lang1PrefixField, u"Deutsch_Prefix");
    EXPECT_EQ(handler.Lang2KommentarField, u"Englisch_Kommentar");
    EXPECT_EQ(handler.GetDBVersion(), 1);
    EXPECT_EQ(languagesAfter(u"UPDATE lmt_properties SET value = 2 WHERE name = 'DBVersion'"_s),
              u"Deutsch Englisch / Lang1_Main Lang2_Main");
    EXPECT_EQ(
        languagesAfter(u"UPDATE lmt_properties SET value = 'Lang1= Alt @Lang2=Neu' WHERE name = 'Languages';"
                       "DELETE FROM lmt_properties WHERE name = 'DBVersion'"_s),
        u"Alt Neu / Alt_Main Neu_Main")
        << "trimmed before the fields are named";
    EXPECT_EQ(handler.GetDBVersion(), 0);
}

TEST_F(Languages, OfAFileWithoutThemAreSpanishAndGerman) {
    EXPECT_EQ(languagesAfter(u"DELETE FROM lmt_properties WHERE name = 'Languages'"_s),
              u"Spanisch Deutsch / Spanisch_Main Deutsch_Main")
        << "whatever the version says and the columns are called";
    EXPECT_EQ(handler.Lang1KommentarField, u"Spanisch_Kommentar");
    EXPECT_EQ(languagesAfter(u"INSERT INTO lmt_properties(table_name, name, type, value) "
                             "VALUES('Vokabular', 'Languages', 10, '')"_s),
              u"Spanisch Deutsch / Spanisch_Main Deutsch_Main");
    EXPECT_TRUE(reports.isEmpty());
}

TEST_F(Languages, MalformedMakeNoLanguageDatabase) {
    EXPECT_EQ(languagesAfter(u"UPDATE lmt_properties SET value = 'Deutsch' WHERE name = 'Languages'"_s),
              NoLanguages);
    EXPECT_TRUE(reports.isEmpty()) << "the caller tells the user";
    EXPECT_EQ(languagesAfter(u"UPDATE lmt_properties SET value = 'a@b=c' WHERE name = 'Languages'"_s),
              NoLanguages);
}

TEST_F(Languages, HangOnTheVocabularyTableAlone) {
    EXPECT_EQ(languagesAfter(u"UPDATE lmt_properties SET table_name = 'Bereiche'"_s),
              u"Spanisch Deutsch / Spanisch_Main Deutsch_Main");
    EXPECT_EQ(handler.GetDBVersion(), 0);
}

TEST_F(Languages, OfSeveralPropertiesOfOneNameTheFirstCounts) {
    EXPECT_EQ(
        languagesAfter(u"INSERT INTO lmt_properties(table_name, name, type, value) "
                       "VALUES('Vokabular', 'Languages', 10, 'x=A@y=B'), ('Vokabular', 'DBVersion', 3, 1)"_s),
        u"Deutsch Englisch / Lang1_Main Lang2_Main");
    EXPECT_EQ(handler.GetDBVersion(), 3);
}

TEST_F(Languages, OfAFileWithoutTheVocabularyTableAreReportedAsAnError) {
    reopenAfter(u"DROP TABLE Vokabular"_s);
    EXPECT_EQ(handler.GetDBVersion(), -99);
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(u"Item not found"_s));
    EXPECT_FALSE(handler.GetLanguages());
    EXPECT_EQ(reports.size(), 2) << "the engine's message comes twice";
}

TEST_F(Languages, AVersionThatIsNoNumberIsAnError) {
    for (const QString& value : {u"'x'"_s, u"40000"_s, u"NULL"_s, u"1e300"_s}) {
        reports.clear();
        reopenAfter(u"UPDATE lmt_properties SET value = %1 WHERE name = 'DBVersion'"_s.arg(value));
        EXPECT_EQ(handler.GetDBVersion(), value == u"NULL"_s ? 0 : -99) << value.toStdString();
        EXPECT_EQ(reports.size(), value == u"NULL"_s ? 0 : 1) << value.toStdString();
    }
}

TEST_F(Languages, WithoutADatabaseAreAnError) {
    handler.Database = dao::Database();
    EXPECT_EQ(handler.GetDBVersion(), -99);
    EXPECT_FALSE(handler.GetLanguages());
    EXPECT_EQ(reports.size(), 2);
}

} // namespace lingomat
