// What reading and searching cost, in statements and steps of SQLite's machine, not in time.

#include "Connection.h"
#include "EngineTest.h"
#include "StatementCounter.h"

using namespace Qt::StringLiterals;

namespace dao {

/// 10,000 words and two links for each; every word has the VID that is its ID halved.
class Cost : public EngineTest {
protected:
    static constexpr int Rows = 10000;

    Cost() {
        fill(Rows);
        database = DBEngine::OpenDatabase(file());
    }

    void fill(int rows) {
        RawFile(file()).run(
            u"DELETE FROM Wort; DELETE FROM Link;"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
            "INSERT INTO Wort SELECT i, 'w' || i, 'neu', i % 7, i / 2 FROM n;"
            "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 2 * %1 - 1) "
            "INSERT INTO Link(IDV, ID) SELECT i / 2 + 1, i % 50 FROM n;"_s.arg(rows));
    }

    /// Steps of an action.
    [[nodiscard]] qint64 steps(const std::function<void()>& action) {
        m_counter.restart();
        action();
        return m_counter.steps();
    }
    [[nodiscard]] qint64 statements(const std::function<void()>& action) {
        m_counter.restart();
        action();
        return m_counter.statements();
    }

    /// What the SQL that the engine runs for a criterion does, one line each step.
    [[nodiscard]] QStringList searchPlan(const QString& table, const QString& criterion) const {
        Connection connection(file(), Connection::Mode::ReadWrite);
        const auto select = connection.selectPlan(u"SELECT * FROM "_s + table);
        const auto find = select.plan->findPlan(criterion);
        RawFile raw(file());
        QStringList result;
        for (const QStringList& row :
             raw.rows(u"EXPLAIN QUERY PLAN "_s + QString::fromUtf8(find.plan->forward)))
            result.append(row.last());
        return result;
    }

private:
    StatementCounter m_counter; // before the database is opened anew
};

namespace {

/// Far below what looking at all rows costs (some 10 steps each), far above what a handful costs.
constexpr qint64 Few = 1500;

} // namespace

TEST_F(Cost, CriteriaOnKeysAreSearchedByAnIndex) {
    const std::pair<QString, QString> table[] = {
        {u"Wort"_s, u"ID LIKE '17'"_s},
        {u"Wort"_s, u"ID = 17"_s},
        {u"Wort"_s, u"VID LIKE '17'"_s},
        {u"Wort"_s, u"VID = 17 AND Score = 1"_s},
        {u"Wort"_s, u"ID LIKE '17' OR VID LIKE '17'"_s},
        {u"Link"_s, u"IDV LIKE '17'"_s},
        {u"Link"_s, u"ID LIKE '17'"_s},
        {u"Link"_s, u"IDV LIKE '17' OR ID LIKE '17'"_s},
        {u"Link"_s, u"(IDV LIKE '1' AND ID LIKE '2') OR (IDV LIKE '2' AND ID LIKE '1')"_s},
    };
    for (const auto& [name, criterion] : table)
        for (const QString& step : searchPlan(name, criterion))
            EXPECT_FALSE(step.startsWith(u"SCAN"_s)) << criterion.toStdString() << ": " << step.toStdString();
}

TEST_F(Cost, AKeyedSearchLooksAtFewRows) {
    Recordset recordset = words();
    Recordset link = links();
    for (const int key : {1, 5000, 9999}) {
        for (const QString& criterion :
             {u"ID LIKE '%1'"_s, u"ID=%1"_s, u"VID = %1 AND Score >= 0"_s, u"ID LIKE '%1' OR VID LIKE '%1'"_s,
              u"ID = -%1"_s, u"ID LIKE '0%1'"_s}) {
            EXPECT_LT(steps([&] { recordset.FindFirst(criterion.arg(key)); }), Few)
                << criterion.toStdString();
            EXPECT_LT(steps([&] { recordset.FindLast(criterion.arg(key)); }), Few) << criterion.toStdString();
        }
        EXPECT_LT(steps([&] { link.FindFirst(u"IDV LIKE '%1'"_s.arg(key)); }), Few);
        EXPECT_LT(steps([&] { link.FindFirst(u"ID LIKE '99%1'"_s.arg(key)); }), Few);
        EXPECT_LT(
            steps([&] { (void)database.OpenRecordset(u"SELECT * FROM Link WHERE IDV = %1"_s.arg(key)); }),
            Few);
    }
}

TEST_F(Cost, AWalkByFindNextTakesFewStatementsAndLinearSteps) {
    Recordset recordset = words();
    int found = 0;
    const auto walk = [&] {
        for (recordset.FindFirst(u"ID LIKE '*'"_s); !recordset.NoMatch();
             recordset.FindNext(u"ID LIKE '*'"_s))
            found += recordset.field(u"Main"_s).isNull() ? 0 : 1;
    };
    const qint64 full = steps(walk);
    EXPECT_EQ(found, Rows);
    EXPECT_LT(statements(walk), Rows / 20);
    fill(Rows / 4);
    recordset.Requery();
    const qint64 quarter = steps(walk);
    EXPECT_LT(full, quarter * 5) << "four times the rows, four times the steps";
}

TEST_F(Cost, AWalkOverRareMatchesIsLinear) {
    Recordset recordset = words();
    const qint64 all = steps([&] {
        for (recordset.FindFirst(u"Main LIKE '*99'"_s); !recordset.NoMatch();
             recordset.FindNext(u"Main LIKE '*99'"_s)) {
        }
    });
    const qint64 none = steps([&] { recordset.FindFirst(u"Main LIKE '*x'"_s); });
    EXPECT_LT(all, none * 2) << "hits on the way do not make it start again";
}

TEST_F(Cost, AWalkBackwardIsLinear) {
    Recordset recordset = words();
    const auto walk = [&] {
        for (recordset.FindLast(u"ID LIKE '*'"_s); !recordset.NoMatch();
             recordset.FindPrevious(u"ID LIKE '*'"_s)) {
        }
    };
    EXPECT_LT(steps(walk), Rows * 100);
}

TEST_F(Cost, AWalkThatWritesIsLinear) {
    Recordset recordset = database.OpenRecordset(u"SELECT * FROM Wort WHERE ID <= 300"_s);
    const qint64 editing = steps([&] {
        for (recordset.FindFirst(u"ID LIKE '*'"_s); !recordset.NoMatch();
             recordset.FindNext(u"ID LIKE '*'"_s)) {
            recordset.Edit();
            recordset.setField(u"Score"_s, 1);
            recordset.Update();
        }
    });
    EXPECT_LT(editing, 300 * 300);
    const qint64 deleting = steps([&] {
        for (recordset.FindFirst(u"ID LIKE '*'"_s); !recordset.EOF_() && !recordset.NoMatch();
             recordset.FindNext(u"ID LIKE '*'"_s))
            recordset.Delete();
    });
    EXPECT_EQ(recordset.RecordCount(), 0);
    EXPECT_LT(deleting, 300 * 300);
}

TEST_F(Cost, ReadingTheFieldsOfARowTakesOneStatement) {
    Recordset recordset = words();
    EXPECT_LE(statements([&] {
                  for (int round = 0; round < 3; ++round)
                      for (int i = 0; i < recordset.fieldCount(); ++i)
                          (void)recordset.field(i);
              }),
              1);
}

TEST_F(Cost, AColumnThatAWalkAsksForLateIsStillRead) {
    Recordset words = this->words();
    const QString every = u"ID LIKE '*'"_s;
    words.FindFirst(every);
    for (int row = 1; row < 200; ++row) {
        EXPECT_EQ(words.field(0), Value(row));
        words.FindNext(every);
    }
    EXPECT_EQ(words.field(u"Main"_s), Value(u"w200"_s));
    EXPECT_EQ(words.field(u"VID"_s), Value(100));
    words.FindNext(every);
    words.Edit();
    EXPECT_EQ(words.field(u"Main"_s), Value(u"w201"_s));
    words.setField(u"Score"_s, 3);
    words.Update();
    EXPECT_EQ(words.field(u"Main"_s), Value(u"w201"_s));
    EXPECT_EQ(words.field(u"Score"_s), Value(3));
}

TEST_F(Cost, OpeningReadsOnlyTheKeys) {
    const qint64 opening = steps([&] { (void)words(); });
    EXPECT_LT(opening, Rows * 8);
}

TEST_F(Cost, AJoinByKeysIsNoProduct) {
    const qint64 cost = steps([&] {
        EXPECT_EQ(
            database
                .OpenRecordset(
                    u"SELECT DISTINCT Wort.* FROM Wort, Link WHERE Wort.ID = Link.IDV AND Link.ID = 7"_s)
                .RecordCount(),
            Rows / 25);
    });
    EXPECT_LT(cost, Rows * 20);
}

} // namespace dao
