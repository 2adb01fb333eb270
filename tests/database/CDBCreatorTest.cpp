#include "SessionTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace lingomat {

class Creator : public SessionTest {
protected:
    Creator() {
        languages.Lang1Name = u"Deutsch"_s;
        languages.Lang2Name = u"Spanisch"_s;
    }

    LanguageFields languages;
    QStringList existing;
    int internalErrors = 0;
    CDBCreator creator{{
        [this](const QString& name) { existing.append(name); },
        [this](const QString& description) { reports.append(description); },
        [this] { ++internalErrors; },
    }};
};

TEST_F(Creator, HandsBackTheOpenDatabaseAndKeepsIt) {
    const dao::Database database = creator.CreateNewDatabase(path(u"neu.lmt"_s), true, languages);
    EXPECT_TRUE(database.isOpen());
    EXPECT_EQ(database.Name(), path(u"neu.lmt"_s));
    EXPECT_TRUE(creator.Database.isOpen());
    EXPECT_EQ(creator.Database.Name(), database.Name());
    EXPECT_TRUE(reports.isEmpty() && existing.isEmpty());
    EXPECT_EQ(internalErrors, 0);
}

TEST_F(Creator, SetsTheEightFieldNamesOfTheCurrentFormat) {
    (void)creator.CreateNewDatabase(path(u"neu.lmt"_s), true, languages);
    EXPECT_EQ(languages, (LanguageFields{u"Deutsch"_s, u"Spanisch"_s, u"Lang1_Prefix"_s, u"Lang1_Main"_s,
                                         u"Lang1_Suffix"_s, u"Lang1_Kommentar"_s, u"Lang2_Prefix"_s,
                                         u"Lang2_Main"_s, u"Lang2_Suffix"_s, u"Lang2_Kommentar"_s}));
}

TEST_F(Creator, NeverOverwritesAFile) {
    QFile mine(path(u"mine.lmt"_s));
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    mine.write("mine");
    mine.close();
    EXPECT_FALSE(creator.CreateNewDatabase(path(u"mine.lmt"_s), true, languages).isOpen());
    EXPECT_EQ(existing, QStringList{path(u"mine.lmt"_s)});
    EXPECT_FALSE(creator.CreateNewDatabase(path(u"mine.lmt"_s), false, languages).isOpen());
    EXPECT_EQ(existing.size(), 1) << "the caller said: silently";
    EXPECT_TRUE(reports.isEmpty());
    ASSERT_TRUE(mine.open(QIODevice::ReadOnly));
    EXPECT_EQ(mine.readAll(), "mine");
    EXPECT_TRUE(languages.Lang1MainField.isEmpty()) << "nothing was created";
}

TEST_F(Creator, KeepsTheDescriptionOfAnExistingFileAndSaysThatThisWasIt) {
    QStringList kept;
    CDBCreator quiet{{.fileExists = [this](const QString& name) { existing.append(name); },
                      .reportError = [this](const QString& text) { reports.append(text); },
                      .internalError = {},
                      .storeError = [&kept](const QString& text) { kept.append(text); }}};
    const QString name = path(u"neu.lmt"_s);
    EXPECT_TRUE(quiet.CreateNewDatabase(name, false, languages).isOpen());
    EXPECT_FALSE(quiet.FileExisted);
    EXPECT_FALSE(quiet.CreateNewDatabase(name, false, languages).isOpen());
    EXPECT_TRUE(quiet.FileExisted);
    EXPECT_EQ(kept, QStringList{u"Database '%1' already exists."_s.arg(name)});
    EXPECT_FALSE(quiet.CreateNewDatabase(path(u"no/folder.lmt"_s), false, languages).isOpen());
    EXPECT_FALSE(quiet.FileExisted);
    EXPECT_EQ(reports.size(), 1);
}

TEST_F(Creator, ReportsAnyOtherErrorAlsoWhereTheCallerWantsNoMessage) {
    for (const bool showMessage : {true, false}) {
        reports.clear();
        EXPECT_FALSE(creator.CreateNewDatabase(path(u"no/folder.lmt"_s), showMessage, languages).isOpen());
        ASSERT_EQ(reports.size(), 1);
        EXPECT_TRUE(reports.front().contains(u"not a valid path"_s));
    }
    EXPECT_TRUE(existing.isEmpty());
}

TEST_F(Creator, TakesAnyNameOfAFile) {
    for (const QString& name : {u"ohne Endung"_s, u"anders.mdb"_s, u"Wörter 猫.lmt"_s})
        EXPECT_TRUE(creator.CreateNewDatabase(path(name), true, languages).isOpen()) << name.toStdString();
}

TEST_F(Creator, WritesLanguageNamesAsTheyStand) {
    const std::pair<QString, QString> table[] = {{u"a=b"_s, u"c@d"_s},
                                                 {u"Français"_s, u"日本語"_s},
                                                 {u" x "_s, QString()},
                                                 {u"l'eau \"x\""_s, u"l'eau"_s}};
    int number = 0;
    for (const auto& [first, second] : table) {
        languages.Lang1Name = first;
        languages.Lang2Name = second;
        const QString name = path(QString::number(++number));
        const dao::Database database = creator.CreateNewDatabase(name, true, languages);
        EXPECT_EQ(dao::RawFile(name).cell(u"SELECT value FROM lmt_properties WHERE name = 'Languages'"_s),
                  u"Lang1="_s + first + u"@Lang2="_s + second);
    }
}

TEST_F(Creator, EachTableCanBeMadeAloneAndOnlyOnce) {
    dao::Database database = dao::DBEngine::Workspaces(0).CreateDatabase(path(u"stück.lmt"_s), QString());
    using Create = void (CDBCreator::*)(dao::Database&);
    const std::pair<QString, Create> table[] = {
        {u"Bereiche"_s, &CDBCreator::CreateTableBereiche},
        {u"Bereiche_Zwischen"_s, &CDBCreator::CreateTableBereiche_Zwischen},
        {u"GrammatikalischeAttribute"_s, &CDBCreator::CreateTableGrammatikalischeAttribute},
        {u"GrammatikalischeAttribute_Zwischen"_s, &CDBCreator::CreateTableGrammatikalischeAttribute_Zwischen},
        {u"FunktionaleAttribute"_s, &CDBCreator::CreateTableFunktionaleAttribute},
        {u"FunktionaleAttribute_Zwischen"_s, &CDBCreator::CreateTableFunktionaleAttribute_Zwischen},
        {u"Referenzen"_s, &CDBCreator::CreateTableRelations},
        {u"Synonyme"_s, &CDBCreator::CreateTableSynonym},
    };
    for (const auto& [name, create] : table) {
        (creator.*create)(database);
        EXPECT_EQ(database.TableNames().back(), name);
        EXPECT_EQ(dao::errorOf([&, c = create] { (creator.*c)(database); }), 3010) << name.toStdString();
    }
}

TEST_F(Creator, KnowsFourKindsOfRelations) {
    dao::Database database = dao::DBEngine::Workspaces(0).CreateDatabase(path(u"rel.lmt"_s), QString());
    creator.MakeRelation(u"FunktionaleAttribute"_s, database);
    creator.MakeRelation(u"Relations"_s, database);
    creator.MakeRelation(u"Bereich"_s, database);
    creator.MakeRelation(u"GrammatikalischeAttribute"_s, database);
    QStringList names;
    for (const dao::Relation& relation : database.Relations())
        names.append(relation.Name);
    EXPECT_EQ(names, (QStringList{u"VokabularFunktionaleAttribute_Z"_s, u"VokabularBereiche_Z"_s,
                                  u"VokabularGrammatikalischeAttribute_Z"_s}));
    EXPECT_EQ(internalErrors, 0);
    for (const QString& kind : {QString(), u"bereich"_s, u"Bereiche"_s, u"Synonym"_s})
        creator.MakeRelation(kind, database);
    EXPECT_EQ(internalErrors, 4);
    EXPECT_EQ(database.Relations().size(), 3);
}

} // namespace lingomat
