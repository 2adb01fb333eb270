// Each damaged file, and what is still to be had of it.

#include "JetFile.h"
#include "JetFiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

using jet::Problem;

/// How the reader answers.
struct Answer {
    const char16_t* file;
    std::optional<Problem> refused{}; ///< the file as a whole
    bool noTable = false;             ///< Vokabular is not listed, or its definition is damaged
    int rows = 0;
    int lost = 0;
    bool propertiesDamaged = false;
};

const Answer Answers[] = {
    {u"bad_languages.mdb", {}, false, 1},
    {u"bereiche_zwischen_random.lmt", {}, false, 203},
    {u"catalog_data_zero.mdb", Problem::Damaged},
    {u"catalog_tdef_random.mdb", Problem::Damaged},
    {u"empty_vokabular.mdb", {}, false, 0},
    {u"future_version.lmt", {}, false, 1},
    {u"hdr_random.mdb", Problem::Protected},
    {u"hdr_says_jet3.mdb", Problem::Protected},
    {u"hdr_version9.mdb", Problem::Newer},
    {u"jet3_data_body_random.mdb", {}, false, 35, 5},
    {u"jet3_scatter_0040.mdb", {}, false, 40},
    {u"jet3_scatter_0200.mdb", {}, true},
    {u"jet3_tdef_random.mdb", {}, true},
    {u"jet3_trunc_half.mdb", {}, true},
    {u"missing_fields.mdb", {}, false, 12},
    {u"missing_main.mdb", {}, false, 1},
    {u"missing_tables.lmt", {}, false, 7},
    {u"no_user_table.lmt", {}, true},
    {u"no_vokabular.mdb", {}, true},
    {u"other_types.mdb", {}, false, 5},
    {u"overflow_loop.mdb", {}, false, 35, 1},
    {u"prop_block_2gb.mdb", {}, false, 36, 0, true},
    {u"prop_block_huge.mdb", {}, false, 36, 0, true},
    {u"prop_block_len0.mdb", {}, false, 36, 0, true},
    {u"prop_lval_loop.mdb", {}, false, 36, 0, true},
    {u"prop_lval_outside.mdb", {}, false, 36, 0, true},
    {u"prop_magic.mdb", {}, false, 36, 0, true},
    {u"prop_name_huge.mdb", {}, false, 36, 0, true},
    {u"prop_random.lmt", {}, false, 203, 0, true},
    {u"prop_random.mdb", {}, false, 36, 0, true},
    {u"prop_value_len0.mdb", {}, false, 36}, // of a column
    {u"random_bytes.mdb", Problem::NotJet},
    {u"scatter_0040.mdb", {}, false, 36},
    {u"scatter_0400.mdb", {}, true},
    {u"scatter_2000.mdb", {}, true},
    {u"signature_only.mdb", Problem::Protected},
    {u"text_file.mdb", Problem::NotJet},
    {u"trunc_000019.mdb", Problem::Damaged},
    {u"trunc_000100.mdb", Problem::Damaged},
    {u"trunc_002048.mdb", Problem::Damaged},
    {u"trunc_004096.mdb", Problem::Damaged},
    {u"trunc_010000.mdb", Problem::Damaged},
    {u"trunc_half.lmt", {}, false, 0, 203},
    {u"trunc_half.mdb", {}, true},
    {u"trunc_minus_1000.mdb", {}, false, 30, 6},
    {u"trunc_minus_1page.mdb", {}, false, 30, 6},
    {u"vok_data_body_random.mdb", {}, false, 30, 6},
    {u"vok_data_random.mdb", {}, false, 30, 6},
    {u"vok_data_rowcount.mdb", {}, false, 36},
    {u"vok_data_zero.mdb", {}, false, 5, 31},
    {u"vok_row_offsets.mdb", {}, false, 30, 6},
    {u"vok_row_tails.lmt", {}, false, 103, 100},
    {u"vok_row_tails.mdb", {}, false, 17, 19},
    {u"vok_tdef_loop.mdb", {}, true},
    {u"vok_tdef_numcols.mdb", {}, true},
    {u"vok_tdef_numcols200.mdb", {}, true},
    {u"vok_tdef_numidx.mdb", {}, true},
    {u"vok_tdef_random.mdb", {}, true},
    {u"vok_tdef_type.mdb", {}, true},
    {u"vok_umap_outside.mdb", {}, false, 36},
    {u"vok_umap_random.mdb", {}, false, 36},
    {u"vok_umap_zero_len.mdb", {}, false, 36},
    {u"zero_length.mdb", Problem::NotJet},
    {u"zeros.mdb", Problem::NotJet},
};

void PrintTo(const Answer& answer, std::ostream* out) {
    *out << QString::fromUtf16(answer.file).toStdString();
}

class DamagedJet : public testing::TestWithParam<Answer> {
protected:
    const QString path = jetFile(u"damaged/"_s + QString::fromUtf16(GetParam().file));
};

TEST_P(DamagedJet, IsAnswered) {
    const Answer& answer = GetParam();
    std::optional<jet::JetFile> file;
    try {
        file.emplace(path);
    } catch (const jet::Error& error) {
        ASSERT_TRUE(answer.refused) << error.what();
        EXPECT_EQ(error.problem(), *answer.refused);
        EXPECT_GT(error.text().size(), 10);
        return;
    }
    ASSERT_FALSE(answer.refused) << "opened";
    const QString vokabular = u"Vokabular"_s;
    const auto take = [](const jet::Row&) {};
    if (answer.noTable) {
        EXPECT_THROW((void)file->readRows(vokabular, take), jet::Error);
        return;
    }
    const jet::Tally tally = file->readRows(vokabular, take);
    EXPECT_EQ(tally.rowsRead, answer.rows);
    EXPECT_EQ(tally.rowsLost, answer.lost);
    EXPECT_FALSE(tally.isUncertain);
    EXPECT_EQ(file->table(vokabular).propertiesAreDamaged, answer.propertiesDamaged);
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedJet, testing::ValuesIn(Answers), [](const auto& answer) {
    return QString::fromUtf16(answer.param.file).replace(u'.', u'_').toStdString();
});

TEST(DamagedJetFiles, AreAllInTheTable) {
    QStringList told;
    for (const Answer& answer : Answers)
        told.append(u"damaged/"_s + QString::fromUtf16(answer.file));
    EXPECT_EQ(damagedJetFiles(), told);
}

/// Rows as texts of their first fields; what was damaged may not change them.
QStringList mainParts(const QString& name) {
    QStringList texts;
    const jet::JetFile file(jetFile(name));
    (void)file.readRows(u"Vokabular"_s, [&texts](const jet::Row& row) {
        QStringList fields;
        for (const jet::Cell& cell : row) {
            const auto* const text = std::get_if<QString>(&cell);
            fields.append(text == nullptr ? u"-"_s : *text);
        }
        texts.append(fields.join(u'|'));
    });
    return texts;
}

TEST(DamagedJetFiles, RowsThatAreLeftAreUnchanged) {
    const QStringList sound = mainParts(u"old2.mdb"_s);
    for (const auto& name :
         {u"overflow_loop.mdb"_s, u"prop_random.mdb"_s, u"trunc_minus_1000.mdb"_s,
          u"vok_data_body_random.mdb"_s, u"vok_data_rowcount.mdb"_s, u"vok_data_zero.mdb"_s,
          u"vok_row_offsets.mdb"_s, u"vok_row_tails.mdb"_s, u"vok_umap_random.mdb"_s}) {
        SCOPED_TRACE(name.toStdString());
        const QStringList rows = mainParts(u"damaged/"_s + name);
        for (const QString& row : rows)
            EXPECT_TRUE(sound.contains(row)) << row.toStdString();
    }
}

} // namespace
} // namespace lingomat
