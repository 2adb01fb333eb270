// A criterion means the same wherever it is judged: by SQLite over a table, and in memory over a copy.

#include "EngineTest.h"

#include <random>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

/// Random criteria over the fields of table `Wort`, from a fixed seed.
class CriterionMaker {
public:
    explicit CriterionMaker(unsigned seed) : m_random(seed) {}

    [[nodiscard]] QString criterion(int depth = 3) {
        if (depth == 0 || below(3) == 0)
            return condition();
        switch (below(5)) {
        case 0: return u"NOT ("_s + criterion(depth - 1) + u')';
        case 1: return u"NOT "_s + condition();
        case 2: return u'(' + criterion(depth - 1) + u" OR "_s + criterion(depth - 1) + u')';
        case 3: return criterion(depth - 1) + u" AND "_s + criterion(depth - 1);
        default: return criterion(depth - 1) + u" OR "_s + criterion(depth - 1) + u" AND "_s + condition();
        }
    }

    /// A text out of a few characters, so that equal ones are frequent.
    [[nodiscard]] QString text(int longest = 4) {
        static const QStringList characters =
            u"a A b B ä Ä ß 1 7 ' . % _ é e\u0301 \u0301 Σ ς σ ё Ё 猫 😀 \u00A0 \uFEFF"_s.split(u' ');
        QString result;
        for (int i = below(longest + 1); i > 0; --i)
            result += pick(characters);
        return result;
    }
    [[nodiscard]] int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }

private:
    [[nodiscard]] QString pick(const QStringList& list) { return list[below(static_cast<int>(list.size()))]; }

    [[nodiscard]] QString number() {
        return pick({u"0"_s, u"1"_s, u"6"_s, u"-3"_s, u"17"_s, u"2.5"_s, u"40000"_s});
    }
    [[nodiscard]] QString numberField() { return pick({u"ID"_s, u"Score"_s, u"VID"_s, u"Wort.ID"_s}); }
    [[nodiscard]] QString textField() { return pick({u"Main"_s, u"Typ"_s, u"[main]"_s, u"Wort.Typ"_s}); }
    [[nodiscard]] QString quoted(QString value) { return u'\'' + value.replace(u'\'', u"''"_s) + u'\''; }

    [[nodiscard]] QString pattern() {
        static const QStringList pieces = u"* ? # [a-z] [!a] [äé] [1-7] [*] [] [-a] [!]"_s.split(u' ');
        QString result;
        for (int i = below(4); i > 0; --i)
            result += below(2) == 0 ? pick(pieces) : text(2);
        return result;
    }

    [[nodiscard]] QString condition() {
        const QString op = pick({u" = "_s, u" <> "_s, u" < "_s, u" <= "_s, u" > "_s, u" >= "_s});
        const QString like = pick({u" LIKE "_s, u" NOT LIKE "_s});
        switch (below(10)) {
        case 0: return numberField() + op + number();
        case 1: return number() + op + numberField();
        case 2: return numberField() + op + numberField();
        case 3: return textField() + op + quoted(text());
        case 4: return textField() + op + textField();
        case 5: return textField() + like + quoted(pattern());
        case 6:
            return numberField() + like +
                   quoted(pick({u"*"_s, u"1*"_s, u"?"_s, u"6"_s, u"017"_s, u"-3"_s, u"#"_s, u""_s}));
        case 7: return pick({numberField(), textField()}) + pick({u" IS NULL"_s, u" IS NOT NULL"_s});
        case 8: return quoted(text(2)) + like + quoted(pattern());
        default: return quoted(text(2)) + op + textField();
        }
    }

    std::mt19937 m_random;
};

} // namespace

class Equivalence : public EngineTest, public ::testing::WithParamInterface<unsigned> {
protected:
    static constexpr int Rows = 60;

    void fill(CriterionMaker& maker) {
        Recordset recordset = words();
        for (int i = 0; i < Rows; ++i) {
            recordset.AddNew();
            if (maker.below(4) != 0)
                recordset.setField(u"Main"_s, maker.text());
            const QString type = maker.text(2);
            recordset.setField(u"Typ"_s, type.isEmpty() ? Value() : Value(type));
            recordset.setField(u"Score"_s, maker.below(3) == 0 ? Value() : Value(maker.below(8) - 3));
            recordset.setField(u"VID"_s, maker.below(3) == 0 ? Value() : Value(maker.below(20)));
            recordset.Update();
        }
        addLink(1, 1);
    }

    static QStringList findAllKeys(Recordset& recordset, const QString& criterion) {
        QStringList keys;
        for (recordset.FindFirst(criterion); !recordset.NoMatch(); recordset.FindNext(criterion))
            keys.append(recordset.field(u"Wort.ID"_s).toText());
        return keys;
    }
    static QStringList findAllKeysBackward(Recordset& recordset, const QString& criterion) {
        QStringList keys;
        for (recordset.FindLast(criterion); !recordset.NoMatch(); recordset.FindPrevious(criterion))
            keys.prepend(recordset.field(u"Wort.ID"_s).toText());
        return keys;
    }
    [[nodiscard]] QStringList selectKeys(const QString& criterion) const {
        Recordset recordset = database.OpenRecordset(u"SELECT ID FROM Wort WHERE "_s + criterion);
        QStringList keys;
        for (; !recordset.EOF_(); recordset.MoveNext())
            keys.append(recordset.field(0).toText());
        return keys;
    }
};

TEST_P(Equivalence, ACriterionMeansTheSameToSqlAndInMemory) {
    CriterionMaker maker(GetParam());
    fill(maker);
    Recordset live = words();
    Recordset copy = database.OpenRecordset(u"SELECT Wort.* FROM Wort, Link"_s);
    ASSERT_EQ(copy.RecordCount(), Rows);
    int hits = 0;
    for (int round = 0; round < 400; ++round) {
        const QString criterion = maker.criterion();
        SCOPED_TRACE(criterion.toStdString());
        const QStringList keys = findAllKeys(live, criterion);
        ASSERT_EQ(keys, findAllKeys(copy, criterion));
        ASSERT_EQ(keys, findAllKeysBackward(live, criterion));
        ASSERT_EQ(keys, selectKeys(criterion));
        hits += static_cast<int>(keys.size());
    }
    EXPECT_GT(hits, 400 * Rows / 10);
    EXPECT_LT(hits, 400 * Rows * 9 / 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Equivalence, ::testing::Values(1U, 20020301U, 32767U, 3077U));

} // namespace dao
