#include "Dynaset.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace dao {

namespace {

/// A search reads one row, the next one 8, then 64, then this many at a time: a single hit stays cheap, and
/// a walk over all rows takes few statements.
constexpr int LargestRun = 256;
constexpr int RunGrowth = 8;

void bindAll(Statement& statement, int first, const std::vector<Value>& values) {
    for (const Value& value : values)
        statement.bind(first++, value);
}

std::vector<Value> boundValues(const std::vector<criteria::Parameter>& parameters,
                               const std::vector<Value>& literals) {
    std::vector<Value> values;
    values.reserve(parameters.size());
    for (const criteria::Parameter& parameter : parameters)
        values.push_back(criteria::boundValue(parameter, literals));
    return values;
}

} // namespace

Dynaset::Dynaset(std::shared_ptr<Connection> connection, std::shared_ptr<const SelectPlan> plan,
                 std::vector<Value> literals)
    : RecordsetPrivate(std::move(connection), std::move(plan)),
      m_literals(std::move(literals)),
      m_run(static_cast<int>(this->plan().columns.size())),
      m_single(static_cast<int>(this->plan().columns.size())) {
    requery();
}

void Dynaset::requery() {
    m_run.valid = false;
    m_loaded.set = nullptr;
    m_keys.clear();
    const StatementRun run(connection().statement(plan().sql));
    bindAll(*run, 1, boundValues(plan().parameters, m_literals));
    while (run->step())
        m_keys.push_back(run->integer(0));
}

qint64 Dynaset::bookmark() const {
    requireRow();
    return m_keys[position];
}

std::optional<std::size_t> Dynaset::positionOf(qint64 bookmark) const {
    const auto found = std::lower_bound(m_keys.begin(), m_keys.end(), bookmark);
    if (found == m_keys.end() || *found != bookmark)
        return std::nullopt;
    return static_cast<std::size_t>(found - m_keys.begin());
}

// Searching

void Dynaset::useCriterion(const QString& criterion) {
    if (m_find != nullptr && criterion == m_criterion)
        return;
    auto [find, literals] = plan().findPlan(criterion);
    m_findValues = boundValues(find->parameters, literals);
    m_find = std::move(find);
    m_criterion = criterion;
    m_asked.assign(plan().columns.size(), false);
    m_run.valid = false;
}

std::optional<std::size_t> Dynaset::find(const QString& criterion, SearchRange range) {
    useCriterion(criterion);
    if (range.first >= range.last)
        return std::nullopt;
    return range.forward ? findForward(range) : findBackward(range);
}

bool Dynaset::runCovers(qint64 key) const {
    return m_run.valid && m_run.changes == table().changes && m_run.from <= key;
}

void Dynaset::readRun(const QByteArray& sql, qint64 lowest, qint64 highest, int limit) {
    m_loaded.set = nullptr;
    m_run.valid = false;
    m_run.from = lowest;
    m_run.keys.clear();
    m_run.rows.clear();
    m_run.limit = limit;
    // Ahead, only what the walk has asked of the rows before: most walks look at a field or two.
    m_run.held = limit > 1 ? m_asked : std::vector<bool>();
    const StatementRun run(connection().statement(sql));
    run->bind(1, lowest);
    run->bind(2, highest);
    run->bind(3, qint64{limit});
    bindAll(*run, 4, m_findValues);
    while (run->step()) {
        m_run.keys.push_back(run->integer(0));
        m_run.rows.append(*run, 1, m_run.held);
    }
    m_run.complete = static_cast<int>(m_run.keys.size()) < limit;
    m_run.changes = table().changes;
    m_run.valid = true;
}

std::optional<std::size_t> Dynaset::findForward(SearchRange range) {
    qint64 from = m_keys[range.first];
    const qint64 last = m_keys[range.last - 1];
    // A search from the start looks at the file anew: another program may have written.
    if (range.first == 0 || !runCovers(from))
        readRun(m_find->forward, from, last, 1);
    while (true) {
        const auto hit = std::lower_bound(m_run.keys.begin(), m_run.keys.end(), from);
        if (hit == m_run.keys.end()) {
            if (m_run.complete)
                return std::nullopt;
            from = std::max(from, m_run.keys.back() + 1);
            if (from > last)
                return std::nullopt;
            readRun(m_find->forward, from, last, std::min(m_run.limit * RunGrowth, LargestRun));
            continue;
        }
        if (*hit > last)
            return std::nullopt;
        if (const auto row = positionOf(*hit)) {
            m_loaded = {&m_run.rows, static_cast<std::size_t>(hit - m_run.keys.begin()), *hit, m_run.changes};
            return row;
        }
        from = *hit + 1; // a row that came after the keys were taken
    }
}

std::optional<std::size_t> Dynaset::findBackward(SearchRange range) {
    const qint64 first = m_keys[range.first];
    qint64 last = m_keys[range.last - 1];
    while (last >= first) {
        readRun(m_find->backward, first, last, 1);
        m_run.valid = false; // it covers nothing that a search forward could use
        if (m_run.keys.empty())
            return std::nullopt;
        const qint64 key = m_run.keys.front();
        if (const auto row = positionOf(key)) {
            m_loaded = {&m_run.rows, 0, key, m_run.changes};
            return row;
        }
        last = key - 1;
    }
    return std::nullopt;
}

// Reading

void Dynaset::load() {
    requireRow();
    const qint64 key = m_keys[position];
    if (m_loaded.set == nullptr || m_loaded.key != key || m_loaded.changes != table().changes)
        loadSingle();
}

void Dynaset::loadSingle() {
    const qint64 key = m_keys[position];
    m_single.clear();
    const StatementRun run(connection().statement(plan().rowSql));
    run->bind(1, key);
    if (!run->step())
        throw Error(ErrorNumber::RecordDeleted, u"Record is deleted."_s);
    m_single.append(*run, 0);
    m_loaded = {&m_single, 0, key, table().changes};
}

Value Dynaset::value(int column) {
    if (hasKeyToCome(column))
        setValue(column, reserveKey());
    if (m_work != Work::None)
        return m_values[static_cast<std::size_t>(column)];
    load();
    const auto index = static_cast<std::size_t>(column);
    if (!m_asked.empty())
        m_asked[index] = true;
    if (m_loaded.set == &m_run.rows && !m_run.held.empty() && !m_run.held[index])
        loadSingle();
    return m_loaded.set->value(m_loaded.index, column);
}

} // namespace dao
