#include "Snapshot.h"

namespace dao {

Snapshot::Snapshot(std::shared_ptr<Connection> connection, std::shared_ptr<const SelectPlan> plan,
                   std::vector<Value> literals)
    : RecordsetPrivate(std::move(connection), std::move(plan)),
      m_literals(std::move(literals)),
      m_rows(static_cast<int>(this->plan().columns.size())) {
    requery();
}

void Snapshot::requery() {
    m_rows.clear();
    const StatementRun run(connection().statement(plan().sql));
    int number = 0;
    for (const criteria::Parameter& parameter : plan().parameters)
        run->bind(++number, criteria::boundValue(parameter, m_literals));
    while (run->step())
        m_rows.append(*run, 0);
}

std::optional<std::size_t> Snapshot::find(const QString& criterion, SearchRange range) {
    if (!m_evaluator || criterion != m_criterion) {
        auto [find, literals] = plan().findPlan(criterion);
        m_evaluator.emplace(find->tree, std::move(literals));
        m_find = std::move(find);
        m_criterion = criterion;
    }
    const auto matches = [this](std::size_t row) { return m_evaluator->matches(RowSetView(m_rows, row)); };
    for (std::size_t i = range.first; i < range.last; ++i) {
        const std::size_t row = range.forward ? i : range.last - 1 - (i - range.first);
        if (matches(row))
            return row;
    }
    return std::nullopt;
}

Value Snapshot::value(int column) {
    requireRow();
    return m_rows.value(position, column);
}

qint64 Snapshot::bookmark() const {
    requireRow();
    return static_cast<qint64>(position);
}

std::optional<std::size_t> Snapshot::positionOf(qint64 bookmark) const {
    if (bookmark < 0 || static_cast<std::size_t>(bookmark) >= m_rows.size())
        return std::nullopt;
    return static_cast<std::size_t>(bookmark);
}

} // namespace dao
