#pragma once

#include "RecordsetPrivate.h"

namespace dao {

/// The keys of one table's rows, taken when it is opened; the rows are read live.
class Dynaset final : public RecordsetPrivate {
public:
    Dynaset(std::shared_ptr<Connection> connection, std::shared_ptr<const SelectPlan> plan,
            std::vector<Value> literals);

    [[nodiscard]] std::size_t count() const override { return m_keys.size(); }
    void requery() override;
    [[nodiscard]] std::optional<std::size_t> find(const QString& criterion, SearchRange range) override;
    [[nodiscard]] Value value(int column) override;
    [[nodiscard]] qint64 bookmark() const override;
    [[nodiscard]] std::optional<std::size_t> positionOf(qint64 bookmark) const override;
    void leaveRow() override { m_work = Work::None; }

    void addNew() override;
    void edit() override;
    void setValue(int column, const Value& value) override;
    void update() override;
    void cancelUpdate() override;
    void deleteRow() override;
    [[nodiscard]] qint64 lastModified() const override;

private:
    enum class Work { None, Adding, Editing };

    /// Rows that a search has read ahead.
    struct Run {
        explicit Run(int columns) : rows(columns) {}
        qint64 from = 0; ///< lowest key that it covers
        std::vector<qint64> keys;
        RowSet rows;
        std::vector<bool> held; ///< columns that `rows` holds; empty: all
        bool complete = false;  ///< nothing matches behind its last row
        bool valid = false;
        quint64 changes = 0; ///< of the table, when it was read
        int limit = 1;
    };
    /// The row that value() reads.
    struct LoadedRow {
        const RowSet* set = nullptr;
        std::size_t index = 0;
        qint64 key = 0;
        quint64 changes = 0;
    };

    [[nodiscard]] Table& table() const { return *plan().tables.front(); }
    [[nodiscard]] const Field& field(int column) const;
    void useCriterion(const QString& criterion);
    [[nodiscard]] std::optional<std::size_t> findForward(SearchRange range);
    [[nodiscard]] std::optional<std::size_t> findBackward(SearchRange range);
    [[nodiscard]] bool runCovers(qint64 key) const;
    void readRun(const QByteArray& sql, qint64 lowest, qint64 highest, int limit);
    void load();
    void loadSingle();
    [[nodiscard]] bool hasKeyToCome(int column) const;
    [[nodiscard]] qint64 reserveKey();
    void insertRow();
    void updateRow();
    void rowWritten(qint64 key);

    std::vector<Value> m_literals;
    std::vector<qint64> m_keys; ///< ascending

    QString m_criterion;
    std::shared_ptr<const FindPlan> m_find;
    std::vector<Value> m_findValues;
    std::vector<bool> m_asked; ///< columns that were read of the rows found so far
    Run m_run;
    RowSet m_single;
    LoadedRow m_loaded;

    Work m_work = Work::None;
    std::vector<Value> m_values; ///< of the row in work
    std::vector<bool> m_set;     ///< which of them were set
    std::optional<qint64> m_lastModified;
};

} // namespace dao
