// What a converted file holds.

#include "ConvertSupport.h"
#include "DBEngine.h"
#include "StoredDate.h"

#include <QApplication>
#include <QFile>
#include <QJsonObject>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

class Converted : public testing::Test {
protected:
    Converted() {
        program.promptsInPlace = &prompts;
        program.startWithDatabase();
        prompts.texts.clear();
        prompts.newFile = program.path(u"new.lmt"_s);
    }
    void convert(const QString& file) {
        prompts.fileToOpen = file;
        program.choose("Datei_Open");
        EXPECT_EQ(prompts.questions, 1);
    }
    void convertJet(const QString& name) {
        const QString file = program.path(name);
        writeFile(file, jetBytes(name));
        convert(file);
        EXPECT_EQ(readFile(file), jetBytes(name)) << "the old file is never touched";
    }
    void convertOld(const OldDatabase& database) {
        writeOldDatabase(program.path(u"old.mdb"_s), database);
        convert(program.path(u"old.mdb"_s));
    }
    [[nodiscard]] bool isOpen() { return program.app().state().CurrentDBPath == prompts.newFile; }
    [[nodiscard]] QStringList rows(const QString& table) const { return tableRows(prompts.newFile, table); }
    [[nodiscard]] QStringList column(const QString& name) const {
        return readColumn(prompts.newFile, u"Vokabular"_s, name);
    }

    ConvertingPrompts prompts;
    TestProgram program;
};

/// The row that a row of an older version becomes, without its key.
QJsonArray expectedRow(const JetTable& table, const QJsonArray& old, const QString& prefix1,
                       const QString& prefix2) {
    QHash<QString, QJsonValue> fields;
    for (qsizetype i = 0; i < table.columns.size(); ++i)
        fields.insert(table.columns[i][0].toString(), old[i]);
    QJsonArray row;
    const auto add = [&](const QString& name, const QJsonValue& ifEmpty = {}) {
        const QJsonValue value = fields.value(name);
        row.append(value.isNull() || value == u""_s ? ifEmpty : value);
    };
    add(u"Quelle"_s);
    for (const auto& date : {u"Eingabedatum"_s, u"Aenderungsdatum"_s}) {
        const QString text = fields.value(date).toString();
        row.append(text.isEmpty() ? QJsonValue() : QJsonValue(DateToStored(text)));
    }
    add(u"Beispielsatz"_s);
    for (const QString& prefix : {prefix1, prefix2})
        for (const auto& part : {u"_Prefix"_s, u"_Main"_s, u"_Suffix"_s, u"_Kommentar"_s})
            add(prefix + part, u""_s);
    add(u"Score"_s, 6);
    row.append(QJsonValue()); // Zusatzinfo is not copied
    add(u"Wortart"_s);
    return row;
}

/// The rows as the new file holds them: parts of expressions are never Null there.
QList<QJsonArray> withoutNullParts(const QString& name, const JetTable& table) {
    const QStringList synonymParts{u"Prefix"_s, u"Main"_s, u"Suffix"_s, u"Kommentar"_s};
    QList<QJsonArray> rows;
    for (QJsonArray row : table.rows) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            const QString column = table.columns[i][0].toString();
            const bool isPart =
                name == u"Synonyme"_s ? synonymParts.contains(column) : column.startsWith(u"Lang"_s);
            if (isPart && row[i].isNull())
                row[i] = u""_s;
        }
        rows.append(row);
    }
    return rows;
}

/// The areas that are stored: those closed by "@", up to the first that cannot be.
QString expectedAreas(const JetTable& table, const QJsonArray& old) {
    const qsizetype last = table.columns.size() - 1;
    EXPECT_EQ(table.columns[last][0].toString(), u"Bereich"_s);
    QStringList items = old[last].toString().trimmed().split(u'@');
    items.removeLast();
    QString areas;
    for (const QString& item : std::as_const(items)) {
        if (item.isEmpty() || item.contains(u'\''))
            break;
        areas += item + u'|';
    }
    return areas;
}

struct OldFile {
    const char16_t* name;
    const char16_t* prefix1;
    const char16_t* prefix2;
    const char16_t* languages;
};
const OldFile OldFiles[] = {
    {u"old1.mdb", u"Spanisch", u"Deutsch", u"Lang1=Spanisch@Lang2=Deutsch"},
    {u"old1_jet3.mdb", u"Spanisch", u"Deutsch", u"Lang1=Spanisch@Lang2=Deutsch"},
    {u"old1named.mdb", u"Franzoesisch", u"Deutsch", u"Lang1=Franzoesisch@Lang2=Deutsch"},
    {u"old2.mdb", u"Lang1", u"Lang2", u"Lang1=Deutsch@Lang2=Englisch"},
    {u"old2_jet3.mdb", u"Lang1", u"Lang2", u"Lang1=Deutsch@Lang2=Englisch"},
    {u"old2_grown.mdb", u"Lang1", u"Lang2", u"Lang1=Deutsch@Lang2=Englisch"},
    {u"old2_moved.mdb", u"Lang1", u"Lang2", u"Lang1=Deutsch@Lang2=Englisch"},
    {u"old2_jet3_cp1250.mdb", u"Lang1", u"Lang2", u"Lang1=Polnisch@Lang2=Deutsch"},
};

class ConvertedOldFile : public Converted, public testing::WithParamInterface<OldFile> {};

TEST_P(ConvertedOldFile, HoldsWhatTheOldOneHeld) {
    const OldFile& file = GetParam();
    const QString name = QString::fromUtf16(file.name);
    convertJet(name);
    ASSERT_TRUE(isOpen()) << prompts.texts.join(u'\n').toStdString();
    const JetTable table = jetContents(name).tables[u"Vokabular"_s];
    const QHash<qint64, QString> areas = areasOfEntries(prompts.newFile);
    QStringList expected;
    for (qsizetype i = 0; i < table.rows.size(); ++i) {
        QJsonArray row = expectedRow(table, table.rows[i], QString::fromUtf16(file.prefix1),
                                     QString::fromUtf16(file.prefix2));
        row.prepend(i + 1); // keys are given anew
        expected.append(rowText(row));
        EXPECT_EQ(areas.value(i + 1), expectedAreas(table, table.rows[i])) << rowText(row).toStdString();
    }
    EXPECT_EQ(rows(u"Vokabular"_s), expected);
    const dao::Database database = dao::DBEngine::OpenDatabase(prompts.newFile);
    EXPECT_FALSE(database.isJet());
    EXPECT_EQ(database.Table(u"Vokabular"_s).Properties[0].Value.toText(),
              QString::fromUtf16(file.languages));
    EXPECT_EQ(database.Table(u"Vokabular"_s).Properties[1].Value.toInteger(), 3);
}

INSTANTIATE_TEST_SUITE_P(Files, ConvertedOldFile, testing::ValuesIn(OldFiles), [](const auto& file) {
    return QString::fromUtf16(file.param.name).replace(u'.', u'_').toStdString();
});

class ConvertedCurrentFile : public Converted, public testing::WithParamInterface<QString> {};

TEST_P(ConvertedCurrentFile, HoldsEverythingUnchanged) {
    convertJet(GetParam());
    ASSERT_TRUE(isOpen()) << prompts.texts.join(u'\n').toStdString();
    EXPECT_TRUE(prompts.texts.isEmpty());
    const JetContents contents = jetContents(GetParam());
    ASSERT_EQ(contents.tables.size(), 9);
    for (auto table = contents.tables.begin(); table != contents.tables.end(); ++table) {
        QStringList found = rows(table.key());
        found.sort();
        EXPECT_EQ(found, rowTexts(withoutNullParts(table.key(), *table))) << table.key().toStdString();
    }
    EXPECT_EQ(program.label("AnzahlLabel"),
              u"Number of entries: %1"_s.arg(contents.tables[u"Vokabular"_s].rows.size()));
    EXPECT_EQ(program.label("Lang2Label"), u"Spanisch"_s);
}

TEST_P(ConvertedCurrentFile, IsListedWholeWithoutAWord) {
    convertJet(GetParam());
    program.click("Command1");
    child<QPushButton>(program.app().form2(), "Command4").click();
    EXPECT_TRUE(prompts.texts.isEmpty()) << prompts.texts.first().toStdString();
    EXPECT_EQ(program.app().liste().countRows(), column(u"ID"_s).size());
}

INSTANTIATE_TEST_SUITE_P(Files, ConvertedCurrentFile,
                         testing::Values(u"current.lmt"_s, u"current_jet3.lmt"_s), [](const auto& file) {
                             return QString(file.param).replace(u'.', u'_').toStdString();
                         });

TEST_F(Converted, EmptyTableGivesAnEmptyDatabase) {
    writeFile(program.path(u"empty.mdb"_s), jetBytes(u"damaged/empty_vokabular.mdb"_s));
    convert(program.path(u"empty.mdb"_s));
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(program.app().state().DBIsEmpty);
    EXPECT_EQ(prompts.texts, QStringList({u"The database is empty!"_s}));
    EXPECT_TRUE(rows(u"Vokabular"_s).isEmpty());
}

TEST_F(Converted, AreasAreSplitAndTheOneThatNothingClosesIsLost) {
    convertOld({.rows = {{{u"Lang1_Main"_s, u"a"_s}, {u"Bereich"_s, u"Sport@Reise@"_s}},
                         {{u"Lang1_Main"_s, u"b"_s}, {u"Bereich"_s, u" Sport@Haus "_s}},
                         {{u"Lang1_Main"_s, u"c"_s}}}});
    EXPECT_TRUE(prompts.texts.isEmpty());
    const QHash<qint64, QString> areas = areasOfEntries(prompts.newFile);
    EXPECT_EQ(areas.value(1), u"Sport|Reise|"_s);
    EXPECT_EQ(areas.value(2), u"Sport|"_s);
    EXPECT_EQ(areas.size(), 2);
    EXPECT_EQ(rows(u"Bereiche"_s).size(), 2) << "the list grows by new names only";
}

TEST_F(Converted, DatesAreTurnedAndForeignOnesStay) {
    convertOld({.rows = {{{u"Eingabedatum"_s, u"31.12.90"_s}, {u"Aenderungsdatum"_s, u"01.01.91"_s}},
                         {{u"Eingabedatum"_s, u"1.5.03"_s}, {u"Aenderungsdatum"_s, u"unbekannt"_s}},
                         {{u"Eingabedatum"_s, u"2003-05-01"_s}, {u"Aenderungsdatum"_s, u""_s}}}});
    EXPECT_EQ(column(u"Eingabedatum"_s), QStringList({u"20901231"_s, u"1.5.03"_s, u"2003-05-01"_s}));
    EXPECT_EQ(column(u"Aenderungsdatum"_s), QStringList({u"19910101"_s, u"unbekannt"_s, QString()}));
}

TEST_F(Converted, NullAndEmptyBecomeTheDefault) {
    convertOld({.rows = {{}, {{u"Lang1_Main"_s, u""_s}, {u"Score"_s, -3}}}});
    EXPECT_EQ(column(u"Score"_s), QStringList({u"6"_s, u"-3"_s}));
    EXPECT_EQ(rows(u"Vokabular"_s)[0],
              u"[1,null,null,null,null,\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",6,null,null]"_s);
}

TEST_F(Converted, OldFileIsListedWholeWithoutAWord) {
    convertJet(u"old2_grown.mdb"_s);
    program.click("Command1");
    child<QPushButton>(program.app().form2(), "Command4").click();
    EXPECT_TRUE(prompts.texts.isEmpty()) << prompts.texts.first().toStdString();
    EXPECT_EQ(program.app().liste().countRows(), column(u"ID"_s).size());
}

TEST_F(Converted, WhatACrashHasLeftBesideTheTargetIsNoPartOfIt) {
    const QString log = prompts.newFile + u"-wal"_s;
    writeDatabase(prompts.newFile, {.entries = {{u"left"_s, u"behind"_s, {}, {}, {}}}});
    QByteArray left;
    {
        dao::Database database = dao::DBEngine::OpenDatabase(prompts.newFile);
        const dao::WriteBurst burst(database);
        dao::Recordset rows = database.OpenRecordset(u"SELECT * FROM Vokabular"_s);
        rows.Edit();
        rows.setField(u"Lang1_Main"_s, u"never folded in"_s);
        rows.Update();
        left = readFile(log);
    }
    ASSERT_FALSE(left.isEmpty());
    ASSERT_TRUE(QFile::remove(prompts.newFile));
    writeFile(log, left);
    convertOld({.rows = {{{u"Lang1_Main"_s, u"a"_s}}}});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(column(u"Lang1_Main"_s), QStringList{u"a"_s});
}

TEST_F(Converted, OnlyTheFieldsOfTheFormatAreCopied) {
    convertOld({.rows = {{{u"Zusatzinfo"_s, u"x"_s}, {u"Fremd"_s, u"y"_s}, {u"Wortart"_s, u"z"_s}}},
                .extraFields = {u"Fremd"_s}});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(column(u"Zusatzinfo"_s), QStringList({QString()}));
    EXPECT_EQ(column(u"Wortart"_s), QStringList({u"z"_s}));
}

TEST_F(Converted, FileWithoutLanguagesHasThoseOfTheOldestForm) {
    convertOld({.version = 0,
                .languages = {},
                .prefix1 = u"Spanisch"_s,
                .prefix2 = u"Deutsch"_s,
                .rows = {{{u"Spanisch_Main"_s, u"casa"_s}, {u"Deutsch_Main"_s, u"Haus"_s}}}});
    EXPECT_TRUE(prompts.texts.isEmpty()) << "nothing is missing";
    EXPECT_EQ(program.app().state().Lang1Name, u"Spanisch"_s);
    EXPECT_EQ(program.app().state().Lang2Name, u"Deutsch"_s);
    EXPECT_EQ(column(u"Lang1_Main"_s), QStringList({u"casa"_s}));
    EXPECT_EQ(column(u"Lang2_Main"_s), QStringList({u"Haus"_s}));
}

TEST_F(Converted, FieldsBelowVersionTwoAreNamedAfterTheLanguages) {
    convertOld({.version = 1,
                .languages = u"Lang1= Latein @Lang2=Deutsch"_s,
                .prefix1 = u"Latein"_s,
                .prefix2 = u"Deutsch"_s,
                .rows = {{{u"Latein_Kommentar"_s, u"f."_s}}}});
    EXPECT_EQ(program.app().state().Lang1Name, u"Latein"_s);
    EXPECT_EQ(column(u"Lang1_Kommentar"_s), QStringList({u"f."_s}));
}

TEST_F(Converted, LanguagesThatCannotBeReadAreToldAndStayEmpty) {
    convertOld({.languages = u"Deutsch"_s, .rows = {{{u"Lang1_Main"_s, u"a"_s}}}});
    EXPECT_EQ(
        prompts.texts,
        QStringList({u"The database has no information about the contained languages. For this reason no "
                     u"language information can be stored in the converted database!"_s}));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(program.app().state().Lang1Name, QString()) << "not the name of the file that was open before";
    EXPECT_EQ(column(u"Lang1_Main"_s), QStringList({u"a"_s}));
}

TEST_F(Converted, AreasThatCannotBeStoredAreToldOnceAndCounted) {
    QList<OldRow> many;
    for (int i = 0; i < 300; ++i)
        many.append({{u"Lang1_Main"_s, QString::number(i)}, {u"Bereich"_s, u"Sport@l'eau@"_s}});
    many.append({{u"Lang1_Main"_s, u"last"_s}, {u"Bereich"_s, u"Reise@"_s}});
    convertOld({.rows = many});
    ASSERT_EQ(prompts.texts.size(), 2) << prompts.texts.join(u'\n').toStdString();
    EXPECT_TRUE(prompts.texts[0].startsWith(u"The following error occured: "_s));
    EXPECT_TRUE(prompts.texts[0].contains(u"l'eau"_s)) << prompts.texts[0].toStdString();
    EXPECT_EQ(prompts.texts[1], u"The areas of 299 more entries could not be stored completely."_s);
    EXPECT_EQ(column(u"Lang1_Main"_s).size(), 301) << "no entry is lost";
    const QHash<qint64, QString> areas = areasOfEntries(prompts.newFile);
    EXPECT_EQ(areas.value(300), u"Sport|"_s) << "links made before the error stay";
    EXPECT_EQ(areas.value(301), u"Reise|"_s);
}

TEST_F(Converted, ProgressShowsTheRowsAndGoesAtTheEnd) {
    convertOld({.rows = {{{u"Bereich"_s, u"l'eau@"_s}}, {}, {}}});
    EXPECT_EQ(prompts.statusAtMessage, u"File is being converted ..."_s);
    EXPECT_EQ(prompts.rowsAtMessage, 3);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows)
        EXPECT_FALSE(window->objectName() == u"Progress"_s && window->isVisible());
}

} // namespace
} // namespace lingomat
