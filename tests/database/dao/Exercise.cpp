#include "Exercise.h"

#include "DBEngine.h"
#include "EngineError.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

class Exerciser {
public:
    explicit Exerciser(bool changes) : m_changes(changes) {}

    Outcome run(const QString& path) {
        attempt([&] { open(path); });
        return m_outcome;
    }

private:
    template <typename Action>
    void attempt(const Action& action) {
        try {
            action();
        } catch (const Error& error) {
            m_outcome.failed = true;
            EXPECT_FALSE(error.Description().isEmpty());
        }
    }

    void open(const QString& path) {
        Database database = DBEngine::OpenDatabase(path);
        m_outcome.opened = true;
        (void)database.Relations();
        QStringList tables = database.TableNames();
        for (const QString& table : tables) {
            (void)database.Table(table).Properties;
            attempt([&] { useTable(database, table); });
        }
        if (tables.size() > 1)
            attempt([&] {
                Recordset join = database.OpenRecordset(
                    u"SELECT DISTINCT [%1].* FROM [%1], [%2]"_s.arg(tables[0], tables[1]));
                walk(join);
            });
        database.Close();
    }

    void useTable(const Database& database, const QString& table) {
        Recordset recordset = database.OpenRecordset(u"SELECT * FROM ["_s + table + u']');
        attempt([&] { walk(recordset); });
        for (int i = 0; i < recordset.fieldCount(); ++i)
            attempt([&] { search(recordset, u'[' + recordset.fieldName(i) + u']'); });
        if (m_changes)
            attempt([&] { change(recordset); });
    }

    void walk(Recordset& recordset) {
        if (recordset.RecordCount() > 0)
            recordset.MoveFirst();
        for (; !recordset.EOF_(); recordset.MoveNext())
            attempt([&] {
                for (int i = 0; i < recordset.fieldCount(); ++i)
                    (void)recordset.field(i);
            });
    }

    void search(Recordset& recordset, const QString& field) {
        for (const QString& condition : {u" LIKE '*'"_s, u" LIKE '1'"_s, u" LIKE '*a*'"_s, u" IS NULL"_s})
            attempt(
                [&] { findAll(recordset, field + condition, &Recordset::FindFirst, &Recordset::FindNext); });
        attempt([&] {
            findAll(recordset, field + u" LIKE '*1*'"_s, &Recordset::FindLast, &Recordset::FindPrevious);
        });
    }

    using Find = void (Recordset::*)(const QString& criterion);

    static void findAll(Recordset& recordset, const QString& criterion, Find first, Find next) {
        int found = 0;
        for ((recordset.*first)(criterion); !recordset.NoMatch(); (recordset.*next)(criterion))
            if (++found > recordset.RecordCount()) {
                ADD_FAILURE() << "a walk without end: " << criterion.toStdString();
                return;
            }
    }

    void change(Recordset& recordset) {
        attempt([&] {
            recordset.AddNew();
            recordset.Update();
        });
        attempt([&] {
            recordset.MoveLast();
            recordset.Edit();
            for (int i = 1; i < recordset.fieldCount(); ++i)
                attempt([&] { recordset.setField(i, 1); });
            recordset.Update();
        });
        attempt([&] {
            recordset.MoveFirst();
            recordset.Delete();
            recordset.MoveNext();
        });
    }

    bool m_changes;
    Outcome m_outcome;
};

} // namespace

Outcome readEverything(const QString& path) {
    return Exerciser(false).run(path);
}

Outcome changeEverything(const QString& path) {
    return Exerciser(true).run(path);
}

} // namespace dao
