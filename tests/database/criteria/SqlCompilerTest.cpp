#include "SqlCompiler.h"

#include "ErrorOf.h"
#include "Parser.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using criteria::Column;
using criteria::FieldName;
using criteria::LexedText;
using criteria::Node;
using criteria::Parameter;
using dao::errorOf;
using dao::Value;

namespace {

const std::vector<Column> Columns{
    {u"Vokabular"_s, u"ID"_s, false, "v.id"},
    {u"Vokabular"_s, u"Main"_s, true, "v.main"},
    {u"Vokabular"_s, u"Score"_s, false, "v.score"},
    {u"Vokabular"_s, u"Wortart"_s, true, "v.wortart"},
};

int find(const FieldName& name) {
    for (std::size_t i = 0; i < Columns.size(); ++i)
        if (Columns[i].field.compare(name.field, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    throw dao::Error(dao::ErrorNumber::UnknownFieldName, name.field);
}

struct Compiled {
    QByteArray sql;
    std::vector<Value> values;
};

Compiled compiled(const QString& criterion, int firstParameter = 1) {
    const LexedText text = criteria::lex(criterion);
    Node tree = criteria::parseCriterion(text);
    criteria::resolve(tree, Columns, find);
    const criteria::Sql sql = criteria::compile(tree, Columns, firstParameter);
    Compiled result{sql.text, {}};
    for (const Parameter& parameter : sql.parameters)
        result.values.push_back(criteria::boundValue(parameter, text.literals));
    return result;
}

} // namespace

TEST(SqlCompiler, EveryConditionHasItsSql) {
    const std::pair<QString, QByteArray> table[] = {
        {u"ID = 17"_s, "v.id = ?1"},
        {u"17 = ID"_s, "?1 = v.id"},
        {u"ID <> 17"_s, "v.id <> ?1"},
        {u"ID < 17"_s, "v.id < ?1"},
        {u"ID <= 17"_s, "v.id <= ?1"},
        {u"ID > 17"_s, "v.id > ?1"},
        {u"ID >= 17"_s, "v.id >= ?1"},
        {u"ID = Score"_s, "v.id = v.score"},
        {u"Main = 'x'"_s, "v.main = ?1 COLLATE FOLDED"},
        {u"'x' < Main"_s, "?1 < v.main COLLATE FOLDED"},
        {u"Main = Wortart"_s, "v.main = v.wortart COLLATE FOLDED"},
        {u"'a' = 'A'"_s, "?1 = ?2 COLLATE FOLDED"},
        {u"ID LIKE '17'"_s, "v.id = ?1"},
        {u"Main LIKE 'x'"_s, "v.main = ?1 COLLATE FOLDED"},
        {u"Main LIKE 'x*'"_s, "matches_pattern(?1, v.main)"},
        {u"ID LIKE '1*'"_s, "matches_pattern(?1, v.id)"},
        {u"ID LIKE '*'"_s, "(v.id IS NOT NULL OR NULL)"},
        {u"Main NOT LIKE 'x*'"_s, "NOT (matches_pattern(?1, v.main))"},
        {u"Main NOT LIKE '*'"_s, "NOT ((v.main IS NOT NULL OR NULL))"},
        {u"Main IS NULL"_s, "v.main IS NULL"},
        {u"Main IS NOT NULL"_s, "v.main IS NOT NULL"},
        {u"NOT ID = 1"_s, "NOT (v.id = ?1)"},
        {u"ID = 1 AND Score = 2"_s, "(v.id = ?1 AND v.score = ?2)"},
        {u"ID = 1 OR ID = 2 OR ID = 3"_s, "(v.id = ?1 OR (v.id = ?2 OR v.id = ?3))"},
        {u"ID = 1 OR ID = 2 AND Score = 3 OR ID = 4"_s,
         "(v.id = ?1 OR ((v.id = ?2 AND v.score = ?3) OR v.id = ?4))"},
        {u"ID = 1 OR ID = 2 OR ID = 3 OR ID = 4"_s, "((v.id = ?1 OR v.id = ?2) OR (v.id = ?3 OR v.id = ?4))"},
    };
    for (const auto& [criterion, sql] : table)
        EXPECT_EQ(compiled(criterion).sql, sql) << criterion.toStdString();
}

TEST(SqlCompiler, ParametersAreNumberedFromTheFirstFreeOne) {
    const Compiled result = compiled(u"ID = 7 AND Main LIKE 'x' AND Score > -2"_s, 4);
    EXPECT_EQ(result.sql, "(v.id = ?4 AND (v.main = ?5 COLLATE FOLDED AND v.score > ?6))");
    EXPECT_EQ(result.values, (std::vector<Value>{7, u"x"_s, -2}));
}

TEST(SqlCompiler, APlainPatternAgainstANumberIsBoundAsThatNumber) {
    EXPECT_EQ(compiled(u"ID LIKE '17'"_s).values, std::vector<Value>{17});
    EXPECT_EQ(compiled(u"ID LIKE 17"_s).values, std::vector<Value>{17});
    EXPECT_EQ(compiled(u"ID LIKE '-3'"_s).values, std::vector<Value>{-3});
}

// The pattern is compared with the number's text, which has no leading zero, blank or sign.
TEST(SqlCompiler, ATextThatIsNotTheNumbersOwnFormMeetsNoNumber) {
    for (const QString& text : {u"017"_s, u" 17"_s, u"17 "_s, u"+17"_s, u"1.0"_s, u""_s, u"abc"_s, u"-0"_s,
                                u"99999999999999999999"_s, u"１７"_s, u"0x11"_s, u"1e3"_s})
        EXPECT_EQ(criteria::plainWholeNumber(text), Value(QString())) << text.toStdString();
    EXPECT_EQ(criteria::plainWholeNumber(u"0"_s), Value(0));
}

TEST(SqlCompiler, NothingThatAUserTypedGetsIntoTheSql) {
    const QString nasty[] = {u"x''; DROP TABLE Vokabular; --"_s,
                             u"\" OR 1=1"_s,
                             u"%_"_s,
                             u"\0"_s,
                             u"?1"_s,
                             u"猫"_s,
                             u"😀"_s,
                             u"COLLATE"_s,
                             u"''"_s};
    for (const QString& text : nasty) {
        for (const QString& form :
             {u"Main = '%1'"_s, u"Main LIKE '%1'"_s, u"Main LIKE '*%1*'"_s, u"ID LIKE '%1'"_s,
              u"'%1' < Main"_s, u"Main <> '%1' AND NOT Main LIKE '?%1'"_s}) {
            const QByteArray sql = compiled(QString(form).replace(u"%1"_s, text)).sql;
            EXPECT_EQ(sql,
                      compiled(QString(form).replace(u"%1"_s, text.contains(u'?') ? u"?"_s : u"x"_s)).sql)
                << text.toStdString();
            EXPECT_FALSE(sql.contains('\'') || sql.contains('"') || sql.contains(';')) << sql.toStdString();
        }
    }
}

TEST(SqlCompiler, FieldNamesComeFromTheColumnsNotFromTheText) {
    EXPECT_EQ(compiled(u"[mAIN] = 'x'"_s).sql, "v.main = ?1 COLLATE FOLDED");
    EXPECT_EQ(errorOf([] { (void)compiled(u"[1=1; --] = 'x'"_s); }), 3070);
}

TEST(SqlCompiler, TextMeetsTextAndNumberMeetsNumber) {
    for (const QString& criterion :
         {u"ID = '17'"_s, u"Main = 17"_s, u"'x' = 1"_s, u"ID = Main"_s, u"Main < ID"_s, u"NOT Main = 1"_s,
          u"ID = 1 AND (Score = 2 OR Wortart = 1.5)"_s})
        EXPECT_EQ(errorOf([&] { (void)compiled(criterion); }), 3421) << criterion.toStdString();
    for (const QString& criterion : {u"ID = 1.5"_s, u"ID LIKE 'x'"_s, u"Main LIKE 17"_s, u"1 = 2"_s})
        EXPECT_EQ(errorOf([&] { (void)compiled(criterion); }), std::nullopt) << criterion.toStdString();
}

TEST(SqlCompiler, AnInvalidPatternIsToldWhenItsValueIsBound) {
    EXPECT_EQ(errorOf([] { (void)compiled(u"Main LIKE '[a'"_s); }), 93);
    EXPECT_EQ(errorOf([] { (void)compiled(u"ID = 1 OR Main NOT LIKE '[z-a]'"_s); }), 93);
}

// SQLite bounds the depth of an expression at 1000.
TEST(SqlCompiler, ALongChainIsCompiledAsABalancedTree) {
    QString criterion = u"ID = 0"_s;
    for (int i = 1; i < 5000; ++i)
        criterion += u" OR ID = %1"_s.arg(i);
    const Compiled result = compiled(criterion);
    int depth = 0;
    int deepest = 0;
    for (const char c : result.sql) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        deepest = std::max(deepest, depth);
    }
    EXPECT_LE(deepest, 13);
    ASSERT_EQ(result.values.size(), 5000U);
    EXPECT_EQ(result.values.back(), Value(4999));
}
