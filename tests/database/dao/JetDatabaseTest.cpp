// Files of the formats Jet 3 and Jet 4, behind the classes of the engine.

#include "EngineTest.h"
#include "JetFiles.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace dao {
namespace {

using lingomat::jetContents;
using lingomat::JetContents;
using lingomat::jetFile;

QJsonValue toJson(const Value& value) {
    if (value.isNull())
        return {};
    return value.isInteger() ? QJsonValue(value.toInteger()) : QJsonValue(value.toText());
}

QStringList rowsOf(const Database& file, const QString& table) {
    Recordset rows = file.OpenRecordset("SELECT * FROM "_L1 + table);
    QList<QJsonArray> all;
    for (; !rows.EOF_(); rows.MoveNext()) {
        QJsonArray fields;
        for (int i = 0; i < rows.fieldCount(); ++i)
            fields.append(toJson(rows.field(i)));
        all.append(fields);
    }
    EXPECT_EQ(rows.RecordCount(), all.size());
    return lingomat::rowTexts(all);
}

QJsonArray columnsOf(const TableDef& table) {
    QJsonArray columns;
    for (const Field& field : table.Fields) {
        switch (field.Type) {
        case DataType::Integer: columns.append(QJsonArray{field.Name, u"Integer"_s}); break;
        case DataType::Long: columns.append(QJsonArray{field.Name, u"Long"_s}); break;
        case DataType::Text: columns.append(QJsonArray{field.Name, u"Text"_s, field.Size}); break;
        default: columns.append(field.Name);
        }
    }
    return columns;
}

class JetDatabase : public testing::TestWithParam<QString> {};

TEST_P(JetDatabase, HoldsWhatItShould) {
    const JetContents expected = jetContents(GetParam());
    const Database file = DBEngine::OpenDatabase(jetFile(GetParam()));
    EXPECT_TRUE(file.isJet());
    EXPECT_TRUE(file.isReadOnly());
    EXPECT_EQ(file.Name(), jetFile(GetParam()));
    EXPECT_EQ(file.Version(), QString::number(expected.version) + ".0"_L1);
    EXPECT_TRUE(file.RowLosses().isEmpty());
    QStringList names = file.TableNames();
    names.sort();
    EXPECT_EQ(names, expected.tables.keys());
    for (auto table = expected.tables.begin(); table != expected.tables.end(); ++table) {
        SCOPED_TRACE(table.key().toStdString());
        EXPECT_EQ(columnsOf(file.Table(table.key())), table->columns);
        EXPECT_EQ(rowsOf(file, table.key()), lingomat::rowTexts(table->rows));
    }
    QJsonObject properties;
    for (const Property& property : file.Table(u"Vokabular"_s).Properties)
        if (expected.properties.contains(property.Name))
            properties.insert(property.Name, toJson(property.Value));
    EXPECT_EQ(properties, expected.properties);
}

INSTANTIATE_TEST_SUITE_P(Files, JetDatabase, testing::ValuesIn(lingomat::soundJetFiles()),
                         [](const auto& file) {
                             return QString(file.param).replace(u'.', u'_').toStdString();
                         });

class JetCopyTest : public EngineTest {
protected:
    const Database old = DBEngine::OpenDatabase(jetFile(u"old2.mdb"_s));
};

TEST_F(JetCopyTest, CriteriaFindRows) {
    Recordset rows = old.OpenRecordset(u"SELECT * FROM Vokabular"_s);
    EXPECT_EQ(rows.RecordCount(), 36);
    rows.FindFirst(u"ID LIKE '2'"_s);
    ASSERT_FALSE(rows.NoMatch());
    EXPECT_EQ(rows.field(u"Lang1_Main"_s).toText(), u"Katze"_s);
    rows.FindFirst(u"Lang1_Main LIKE 'KATZ*' AND Score = 6"_s);
    EXPECT_FALSE(rows.NoMatch());
    int count = 0;
    for (rows.FindFirst(u"ID LIKE '*'"_s); !rows.NoMatch(); rows.FindNext(u"ID LIKE '*'"_s))
        ++count;
    EXPECT_EQ(count, 36);
    Recordset some = old.OpenRecordset(u"SELECT DISTINCT Wortart FROM Vokabular WHERE Score > 5"_s);
    EXPECT_GT(some.RecordCount(), 1);
}

TEST_F(JetCopyTest, CanNotBeChanged) {
    Recordset rows = old.OpenRecordset(u"SELECT * FROM Vokabular"_s);
    rows.Edit();
    rows.setField(u"Lang1_Main"_s, u"Kater"_s);
    EXPECT_EQ(errorOf([&] { rows.Update(); }), 3027);
    rows.AddNew();
    rows.setField(u"Lang1_Main"_s, u"Kater"_s);
    EXPECT_EQ(errorOf([&] { rows.Update(); }), 3027);
    EXPECT_EQ(errorOf([&] { rows.Delete(); }), 3027);
    Database copy = old;
    EXPECT_EQ(errorOf([&] { copy.appendTable(wortTable()); }), 3027);
    const WriteBurst burst(copy);
    EXPECT_EQ(rows.RecordCount(), 36);
}

TEST_F(JetCopyTest, FileIsNeitherKeptOpenNorTouched) {
    const QString mine = path(u"mine.mdb"_s);
    write(u"mine.mdb"_s, lingomat::jetBytes(u"old2.mdb"_s));
    QFile::setPermissions(mine, QFile::ReadOwner);
    const Database file = DBEngine::OpenDatabase(mine);
    EXPECT_EQ(bytes(u"mine.mdb"_s), lingomat::jetBytes(u"old2.mdb"_s));
    EXPECT_FALSE(files().contains(u"mine.mdb-journal"_s));
    ASSERT_TRUE(QFile::remove(mine));
    EXPECT_EQ(file.OpenRecordset(u"SELECT * FROM Vokabular"_s).RecordCount(), 36);
}

TEST_F(JetCopyTest, ClosesLikeAnyOther) {
    Database file = DBEngine::OpenDatabase(jetFile(u"old2.mdb"_s));
    file.Close();
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(errorOf([&] { (void)file.isJet(); }), 3420);
}

TEST_F(EngineTest, OwnFileIsNoJetFile) {
    EXPECT_FALSE(database.isJet());
    EXPECT_TRUE(database.RowLosses().isEmpty());
}

Error refusal(const QString& file) {
    try {
        (void)DBEngine::OpenDatabase(jetFile("damaged/"_L1 + file));
    } catch (const Error& error) {
        return error;
    }
    ADD_FAILURE() << "opened " << file.toStdString();
    return {ErrorNumber::Overflow, {}};
}

TEST(DamagedJetDatabase, RefusalSaysWhy) {
    for (const auto& [file, reason] : {std::pair{u"hdr_version9.mdb"_s, u"newer database format"_s},
                                       {u"hdr_random.mdb"_s, u"encoded"_s},
                                       {u"trunc_002048.mdb"_s, u"Its end is missing."_s},
                                       {u"catalog_data_zero.mdb"_s, u"list of its tables"_s},
                                       {u"text_file.mdb"_s, u"Unrecognized database format"_s},
                                       {u"zero_length.mdb"_s, u"Unrecognized database format"_s}}) {
        const Error error = refusal(file);
        EXPECT_EQ(error.Number(), ErrorNumber::UnrecognizedFormat);
        EXPECT_TRUE(error.Description().contains(reason)) << error.what();
        EXPECT_TRUE(error.Description().contains(file)) << error.what();
    }
}

TEST_F(EngineTest, FileOfALaterFormatIsRefusedByItsHeader) {
    write(u"new.accdb"_s, QByteArray("\0\1\0\0Standard ACE DB\0\2", 21) + QByteArray(20000, '\0'));
    try {
        (void)DBEngine::OpenDatabase(path(u"new.accdb"_s));
        FAIL();
    } catch (const Error& error) {
        EXPECT_TRUE(error.Description().contains(u"newer database format"_s)) << error.what();
    }
}

TEST(DamagedJetDatabase, LostRowsAreCounted) {
    struct Case {
        QString file;
        QString table;
        qint64 rows;
    };
    for (const Case& each : {Case{u"vok_row_tails.mdb"_s, u"Vokabular"_s, 19},
                             {u"trunc_minus_1page.mdb"_s, u"Vokabular"_s, 6},
                             {u"bereiche_zwischen_random.lmt"_s, u"Bereiche_Zwischen"_s, 255},
                             {u"scatter_0040.mdb"_s, u"MSysObjects"_s, 1}}) {
        const auto losses = DBEngine::OpenDatabase(jetFile("damaged/"_L1 + each.file)).RowLosses();
        ASSERT_EQ(losses.size(), 1) << each.file.toStdString();
        EXPECT_EQ(losses[0].Table, each.table);
        EXPECT_EQ(losses[0].Rows, each.rows);
        EXPECT_FALSE(losses[0].IsUncertain);
    }
}

TEST(DamagedJetDatabase, TableWithADamagedDefinitionIsAnErrorAndNotMissing) {
    const Database file = DBEngine::OpenDatabase(jetFile(u"damaged/vok_tdef_random.mdb"_s));
    EXPECT_EQ(errorOf([&] { (void)file.Table(u"vokabular"_s); }), 3343);
    EXPECT_EQ(errorOf([&] { (void)file.OpenRecordset(u"SELECT * FROM Vokabular"_s); }), 3343);
    EXPECT_EQ(errorOf([&] { (void)file.Table(u"Bereiche"_s); }), 3265);
}

TEST(DamagedJetDatabase, DamagedPropertiesAreMarked) {
    const Database file = DBEngine::OpenDatabase(jetFile(u"damaged/prop_magic.mdb"_s));
    EXPECT_TRUE(file.Table(u"Vokabular"_s).PropertiesAreDamaged);
    EXPECT_EQ(file.OpenRecordset(u"SELECT * FROM Vokabular"_s).RecordCount(), 36);
    EXPECT_FALSE(DBEngine::OpenDatabase(jetFile(u"old1.mdb"_s)).Table(u"Vokabular"_s).PropertiesAreDamaged);
}

TEST(DamagedJetDatabase, EachIsOpenedOrRefusedWithAText) {
    for (const QString& name : lingomat::damagedJetFiles()) {
        SCOPED_TRACE(name.toStdString());
        try {
            const Database file = DBEngine::OpenDatabase(jetFile(name));
            for (const QString& table : file.TableNames())
                if (!table.contains(u' '))
                    (void)rowsOf(file, table);
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::UnrecognizedFormat) << error.what();
            EXPECT_GT(error.Description().size(), 20);
        }
    }
}

} // namespace
} // namespace dao
