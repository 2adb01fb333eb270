// Sound files, value by value.

#include "JetFile.h"
#include "JetFiles.h"

#include <QBuffer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

QJsonValue toJson(const jet::Cell& cell) {
    if (const auto* number = std::get_if<qint64>(&cell))
        return *number;
    if (const auto* text = std::get_if<QString>(&cell))
        return *text;
    return {};
}

QList<QJsonArray> rowsOf(const jet::JetFile& file, const QString& table) {
    QList<QJsonArray> rows;
    const jet::Tally tally = file.readRows(table, [&rows](const jet::Row& row) {
        QJsonArray fields;
        for (const jet::Cell& cell : row)
            fields.append(toJson(cell));
        rows.append(fields);
    });
    EXPECT_TRUE(tally.isWhole());
    EXPECT_EQ(tally.rowsRead, rows.size());
    return rows;
}

QString typeName(jet::ColumnType type) {
    switch (type) {
    case jet::ColumnType::Integer: return u"Integer"_s;
    case jet::ColumnType::Long: return u"Long"_s;
    case jet::ColumnType::Text: return u"Text"_s;
    default: return u"another"_s;
    }
}

QJsonArray columnsOf(const jet::Table& table) {
    QJsonArray columns;
    for (const jet::Column& column : table.columns) {
        QJsonArray each{column.name, typeName(column.type)};
        if (column.type == jet::ColumnType::Text)
            each.append(column.size);
        columns.append(each);
    }
    return columns;
}

class SoundJet : public testing::TestWithParam<QString> {};

TEST_P(SoundJet, HoldsWhatItShould) {
    const JetContents expected = jetContents(GetParam());
    const jet::JetFile file(jetFile(GetParam()));
    EXPECT_EQ(file.version(), expected.version);
    EXPECT_TRUE(file.tableListTally().isWhole());
    QStringList names = file.tableNames();
    names.sort();
    EXPECT_EQ(names, expected.tables.keys());
    for (auto table = expected.tables.begin(); table != expected.tables.end(); ++table) {
        SCOPED_TRACE(table.key().toStdString());
        EXPECT_EQ(columnsOf(file.table(table.key())), table->columns);
        EXPECT_EQ(rowTexts(rowsOf(file, table.key())), rowTexts(table->rows));
    }
    QJsonObject properties;
    const jet::Table vokabular = file.table(u"Vokabular"_s);
    EXPECT_FALSE(vokabular.propertiesAreDamaged);
    for (const jet::Property& property : vokabular.properties)
        if (expected.properties.contains(property.name))
            properties.insert(property.name, toJson(property.value));
    EXPECT_EQ(properties, expected.properties);
}

INSTANTIATE_TEST_SUITE_P(Files, SoundJet, testing::ValuesIn(soundJetFiles()), [](const auto& file) {
    return QString(file.param).replace(u'.', u'_').toStdString();
});

TEST(SoundJet, KeysAreAutoNumbersAndOtherColumnsAreNot) {
    const jet::JetFile file(jetFile(u"current.lmt"_s));
    EXPECT_TRUE(file.table(u"Vokabular"_s).columns[0].isAutoNumber);
    EXPECT_FALSE(file.table(u"Vokabular"_s).columns[1].isAutoNumber);
    EXPECT_TRUE(file.table(u"Synonyme"_s).columns[0].isAutoNumber);
    EXPECT_FALSE(file.table(u"Bereiche_Zwischen"_s).columns[0].isAutoNumber);
}

TEST(SoundJet, TablesAreFoundWhateverTheirCase) {
    const jet::JetFile file(jetFile(u"old2.mdb"_s));
    EXPECT_EQ(file.table(u"VOKABULAR"_s).name, u"Vokabular"_s);
    EXPECT_THROW((void)file.table(u"Adressen"_s), jet::Error);
}

TEST(SoundJet, ErrorOfTheTakerEndsTheReading) {
    const jet::JetFile file(jetFile(u"old2.mdb"_s));
    int taken = 0;
    EXPECT_THROW(file.readRows(u"Vokabular"_s,
                               [&taken](const jet::Row&) {
                                   if (++taken == 3)
                                       throw std::runtime_error("enough");
                               }),
                 std::runtime_error);
    EXPECT_EQ(taken, 3);
}

TEST(SoundJet, EmptyTableAndEmptyFileAreWhole) {
    const jet::JetFile empty(jetFile(u"damaged/empty_vokabular.mdb"_s));
    EXPECT_TRUE(rowsOf(empty, u"Vokabular"_s).isEmpty());
    EXPECT_TRUE(jet::JetFile(jetFile(u"damaged/no_user_table.lmt"_s)).tableNames().isEmpty());
}

TEST(SoundJet, SignatureIsThatOfTheFormatAndOfItsSuccessor) {
    EXPECT_TRUE(jet::hasSignature(jetBytes(u"old2.mdb"_s)));
    EXPECT_TRUE(jet::hasSignature({"\0\1\0\0Standard ACE DB", 19}));
    EXPECT_FALSE(jet::hasSignature({"\0\1\0\0Standard Jet D", 18}));
    EXPECT_FALSE(jet::hasSignature(QByteArrayView("SQLite format 3\0...", 19)));
    EXPECT_FALSE(jet::hasSignature({}));
}

} // namespace
} // namespace lingomat
