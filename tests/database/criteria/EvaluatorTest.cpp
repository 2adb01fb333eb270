#include "Evaluator.h"

#include "ErrorOf.h"
#include "Parser.h"
#include "SqlCompiler.h"

using namespace Qt::StringLiterals;
using criteria::CellView;
using criteria::Column;
using criteria::Evaluator;
using criteria::FieldName;
using criteria::LexedText;
using criteria::Node;
using dao::errorOf;

namespace {

const std::vector<Column> Columns{
    {u"t"_s, u"n"_s, false, {}},      {u"t"_s, u"none"_s, false, {}}, {u"t"_s, u"s"_s, true, {}},
    {u"t"_s, u"nothing"_s, true, {}}, {u"t"_s, u"blank"_s, true, {}},
};

/// n = 17, s = "Äpfel", blank = "", the others Null.
class OneRow final : public criteria::RowView {
public:
    [[nodiscard]] CellView cell(int column) const override {
        switch (column) {
        case 0: return CellView::ofInteger(17);
        case 2: return CellView::ofText(u"Äpfel");
        case 4: return CellView::ofText(u"");
        default: return {};
        }
    }
};

bool matches(const QString& criterion) {
    const LexedText text = criteria::lex(criterion);
    Node tree = criteria::parseCriterion(text);
    criteria::resolve(tree, Columns, [](const FieldName& name) {
        for (std::size_t i = 0; i < Columns.size(); ++i)
            if (Columns[i].field == name.field)
                return static_cast<int>(i);
        throw dao::Error(dao::ErrorNumber::UnknownFieldName, name.field);
    });
    return Evaluator(tree, text.literals).matches(OneRow());
}

void expectAll(std::initializer_list<QString> criteria, bool expected) {
    for (const QString& criterion : criteria)
        EXPECT_EQ(matches(criterion), expected) << criterion.toStdString();
}

} // namespace

TEST(Evaluator, Compares) {
    expectAll({u"n = 17"_s, u"17 = n"_s, u"n <> 16"_s, u"n < 18"_s, u"n <= 17"_s, u"n > 16"_s, u"n >= 17"_s,
               u"n > 16.5"_s, u"n < 17.25"_s, u"n = 17.0"_s, u"n > -3"_s, u"s = 'äpfel'"_s,
               u"s = 'A\u0308PFEL'"_s, u"s <> 'Apfel'"_s, u"s > 'Zebra'"_s, u"s < 'Äpfeln'"_s,
               u"blank = ''"_s, u"n = n"_s, u"s = s"_s},
              true);
    expectAll({u"n = 16"_s, u"n <> 17"_s, u"n < 17"_s, u"n > 17"_s, u"n = 17.5"_s, u"s = 'Apfel'"_s,
               u"s < 'a'"_s, u"s = ''"_s, u"blank > ''"_s},
              false);
}

TEST(Evaluator, MatchesPatterns) {
    expectAll({u"n LIKE '17'"_s, u"n LIKE 17"_s, u"n LIKE '1*'"_s, u"n LIKE '##'"_s, u"n LIKE '*'"_s,
               u"s LIKE 'ä*'"_s, u"s LIKE 'ÄPFEL'"_s, u"s LIKE '[ä-ö]*'"_s, u"blank LIKE '*'"_s,
               u"blank LIKE ''"_s, u"s NOT LIKE 'a*'"_s},
              true);
    expectAll({u"n LIKE '017'"_s, u"n LIKE ' 17'"_s, u"n LIKE '17.0'"_s, u"n LIKE ''"_s, u"s LIKE 'a*'"_s,
               u"blank LIKE '?'"_s, u"s NOT LIKE '*'"_s},
              false);
}

TEST(Evaluator, NullMeetsNothingNotEvenANegation) {
    expectAll({u"none = 0"_s,
               u"none <> 0"_s,
               u"none = none"_s,
               u"none < 1"_s,
               u"nothing = ''"_s,
               u"nothing <> 'x'"_s,
               u"nothing LIKE '*'"_s,
               u"nothing LIKE ''"_s,
               u"nothing NOT LIKE 'x'"_s,
               u"none LIKE '1*'"_s,
               u"none NOT LIKE '1*'"_s,
               u"nothing NOT LIKE '*'"_s,
               u"NOT none = 0"_s,
               u"NOT nothing LIKE 'x'"_s,
               u"NOT (none = 0 OR n = 16)"_s,
               u"NOT (none = 0 AND n = 17)"_s,
               u"none = 0 OR n = 16"_s,
               u"none = 0 AND n = 17"_s,
               u"none IS NOT NULL"_s,
               u"NOT none IS NULL"_s},
              false);
    expectAll({u"none IS NULL"_s, u"nothing IS NULL"_s, u"blank IS NOT NULL"_s, u"none = 0 OR n = 17"_s,
               u"NOT (none = 0 AND n = 16)"_s, u"n = 17 OR none = 0"_s, u"NOT none IS NOT NULL"_s},
              true);
}

TEST(Evaluator, AndsOrsAndNots) {
    expectAll({u"n = 17 AND s = 'äpfel'"_s, u"n = 1 OR n = 2 OR n = 17"_s, u"NOT n = 1"_s,
               u"NOT (n = 1 OR n = 2)"_s, u"n = 1 AND n = 2 OR n = 17"_s},
              true);
    expectAll(
        {u"n = 17 AND n = 18"_s, u"NOT n = 17"_s, u"n = 1 OR n = 2"_s, u"n = 17 AND (n = 1 OR n = 2)"_s},
        false);
}

TEST(Evaluator, RefusesAnInvalidPatternBeforeItSeesARow) {
    EXPECT_EQ(errorOf([] { (void)matches(u"s LIKE '[a'"_s); }), 93);
    EXPECT_EQ(errorOf([] { (void)matches(u"n = 1 AND NOT (n = 2 OR s LIKE '[z-a]')"_s); }), 93);
}

TEST(Evaluator, APatternMayComeTwice) {
    expectAll({u"s LIKE 'ä*' AND s LIKE '*l' AND NOT s LIKE '*x'"_s}, true);
}
