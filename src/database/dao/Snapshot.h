#pragma once

#include "RecordsetPrivate.h"

namespace dao {

/// The rows of a join, copied when it is opened; they cannot be changed.
class Snapshot final : public RecordsetPrivate {
public:
    Snapshot(std::shared_ptr<Connection> connection, std::shared_ptr<const SelectPlan> plan,
             std::vector<Value> literals);

    [[nodiscard]] std::size_t count() const override { return m_rows.size(); }
    void requery() override;
    [[nodiscard]] std::optional<std::size_t> find(const QString& criterion, SearchRange range) override;
    [[nodiscard]] Value value(int column) override;
    [[nodiscard]] qint64 bookmark() const override;
    [[nodiscard]] std::optional<std::size_t> positionOf(qint64 bookmark) const override;

private:
    std::vector<Value> m_literals;
    RowSet m_rows;
    QString m_criterion;
    std::shared_ptr<const FindPlan> m_find;
    std::optional<criteria::Evaluator> m_evaluator;
};

} // namespace dao
