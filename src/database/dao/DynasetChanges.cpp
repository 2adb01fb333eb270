// Adding, editing and deleting rows of a dynaset.

#include "Dynaset.h"
#include "FieldRules.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace dao {

const Field& Dynaset::field(int column) const {
    return table().definition.Fields[plan().fields[static_cast<std::size_t>(column)]];
}

void Dynaset::addNew() {
    m_work = Work::None;
    const std::size_t columns = plan().columns.size();
    m_values.assign(columns, {});
    m_set.assign(columns, false);
    for (std::size_t i = 0; i < columns; ++i) {
        const Field& f = field(static_cast<int>(i));
        m_values[i] = defaultValue(table().definition.Name, f);
        m_set[i] = !m_values[i].isNull();
    }
    m_work = Work::Adding;
}

void Dynaset::edit() {
    m_work = Work::None;
    load();
    if (m_loaded.set == &m_run.rows && !m_run.held.empty())
        loadSingle();
    const std::size_t columns = plan().columns.size();
    m_values.clear();
    for (std::size_t i = 0; i < columns; ++i)
        m_values.push_back(m_loaded.set->value(m_loaded.index, static_cast<int>(i)));
    m_set.assign(columns, false);
    m_work = Work::Editing;
}

void Dynaset::setValue(int column, const Value& value) {
    if (m_work == Work::None)
        throw Error(ErrorNumber::NoAddNewOrEdit, u"Update or CancelUpdate without AddNew or Edit."_s);
    const Field& f = field(column);
    if (f.isAutoIncrement() && m_work == Work::Editing)
        throw Error(ErrorNumber::FieldNotUpdatable, u"Field '%1' cannot be updated."_s.arg(f.Name));
    const auto index = static_cast<std::size_t>(column);
    m_values[index] = fitted(table().definition.Name, f, value);
    m_set[index] = true;
}

void Dynaset::update() {
    if (m_work == Work::None)
        throw Error(ErrorNumber::NoAddNewOrEdit, u"Update or CancelUpdate without AddNew or Edit."_s);
    if (m_work == Work::Adding)
        insertRow();
    else
        updateRow();
    m_work = Work::None;
}

bool Dynaset::hasKeyToCome(int column) const {
    return m_work == Work::Adding && field(column).isAutoIncrement() &&
           m_values[static_cast<std::size_t>(column)].isNull();
}

/// The next key, which no row will get from now on but the one in work, also not that of another program.
/// Rows may be linked to it before it is written, and stay linked to nothing else if it never is.
qint64 Dynaset::reserveKey() {
    const QString& name = table().definition.Name;
    Transaction transaction(connection());
    qint64 key = 0;
    {
        const StatementRun run(connection().statement(
            "SELECT max(coalesce((SELECT max(CAST(seq AS INTEGER)) FROM sqlite_sequence WHERE name = ?1), 0),"
            " coalesce((SELECT max(" +
            table().keyColumn + ") FROM " + table().sqlName + "), 0))"));
        run->bind(1, name);
        if (run->step())
            key = run->integer(0);
    }
    requireRange<qint32>(key);
    requireRange<qint32>(++key);
    {
        const StatementRun run(connection().statement("DELETE FROM sqlite_sequence WHERE name = ?1"));
        run->bind(1, name);
        run->step();
    }
    {
        const StatementRun run(
            connection().statement("INSERT INTO sqlite_sequence(name, seq) VALUES(?1, ?2)"));
        run->bind(1, name);
        run->bind(2, key);
        run->step();
    }
    transaction.commit();
    return key;
}

void Dynaset::insertRow() {
    QByteArray names;
    QByteArray parameters;
    std::vector<Value> values;
    const auto add = [&](const QString& name, const Value& value) {
        const QByteArray separator = names.isEmpty() ? "" : ", ";
        names += separator + quotedName(name);
        values.push_back(value);
        parameters += separator + '?' + QByteArray::number(static_cast<qulonglong>(values.size()));
    };
    for (std::size_t i = 0; i < m_values.size(); ++i)
        if (m_set[i])
            add(plan().columns[i].field, m_values[i]);
    // Fields that the statement does not show have their defaults all the same.
    const QList<Field>& fields = table().definition.Fields;
    for (int i = 0; i < fields.size(); ++i)
        if (std::find(plan().fields.begin(), plan().fields.end(), i) == plan().fields.end())
            if (const Value value = defaultValue(table().definition.Name, fields[i]); !value.isNull())
                add(fields[i].Name, value);
    const QByteArray sql =
        "INSERT INTO " + table().sqlName +
        (names.isEmpty() ? QByteArray(" DEFAULT VALUES") : '(' + names + ") VALUES(" + parameters + ')');
    connection().prepareToWrite();
    {
        const StatementRun run(connection().statement(sql));
        int parameter = 0;
        for (const Value& value : values)
            run->bind(++parameter, value);
        run->step();
    }
    const qint64 key = connection().lastKey();
    rowWritten(key);
    const auto slot = std::lower_bound(m_keys.begin(), m_keys.end(), key);
    const auto index = static_cast<std::size_t>(slot - m_keys.begin());
    m_keys.insert(slot, key);
    // The current row stays what it was, also where the new one got in before it.
    if ((place == Place::Row && index <= position) || (place == Place::Hole && index < position))
        ++position;
}

void Dynaset::updateRow() {
    requireRow();
    const qint64 key = m_keys[position];
    QByteArray assignments;
    std::vector<Value> values;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (!m_set[i])
            continue;
        values.push_back(m_values[i]);
        assignments += (assignments.isEmpty() ? "" : ", ") + quotedName(plan().columns[i].field) + " = ?" +
                       QByteArray::number(static_cast<qulonglong>(values.size() + 1));
    }
    if (values.empty()) {
        m_lastModified = key;
        return;
    }
    connection().prepareToWrite();
    {
        const StatementRun run(connection().statement("UPDATE " + table().sqlName + " SET " + assignments +
                                                      " WHERE " + table().keyColumn + " = ?1"));
        run->bind(1, key);
        int parameter = 1;
        for (const Value& value : values)
            run->bind(++parameter, value);
        run->step();
    }
    if (connection().changedRows() == 0)
        throw Error(ErrorNumber::RecordDeleted, u"Record is deleted."_s);
    rowWritten(key);
}

void Dynaset::rowWritten(qint64 key) {
    ++table().changes;
    m_lastModified = key;
}

void Dynaset::cancelUpdate() {
    if (m_work == Work::None)
        throw Error(ErrorNumber::NoAddNewOrEdit, u"Update or CancelUpdate without AddNew or Edit."_s);
    m_work = Work::None;
}

void Dynaset::deleteRow() {
    requireRow();
    m_work = Work::None;
    const qint64 key = m_keys[position];
    connection().prepareToWrite();
    {
        const StatementRun run(connection().statement("DELETE FROM " + table().sqlName + " WHERE " +
                                                      table().keyColumn + " = ?1"));
        run->bind(1, key);
        run->step();
    }
    if (connection().changedRows() == 0)
        throw Error(ErrorNumber::RecordDeleted, u"Record is deleted."_s);
    ++table().changes;
    m_keys.erase(m_keys.begin() + static_cast<std::ptrdiff_t>(position));
    place = Place::Hole;
}

qint64 Dynaset::lastModified() const {
    if (!m_lastModified)
        throw Error(ErrorNumber::NoCurrentRecord, u"No current record."_s);
    return *m_lastModified;
}

} // namespace dao
