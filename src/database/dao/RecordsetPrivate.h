#pragma once

// Private to the engine: what stands behind a Recordset.

#include "Connection.h"
#include "Evaluator.h"
#include "Recordset.h"
#include "RowSet.h"

#include <optional>
#include <vector>

namespace dao {

/// Positions first <= i < last of the rows of a cursor, to be searched from one end.
struct SearchRange {
    std::size_t first;
    std::size_t last;
    bool forward;
};

/// A cursor: where it stands, and the rows behind it.
class RecordsetPrivate {
public:
    RecordsetPrivate(std::shared_ptr<Connection> connection, std::shared_ptr<const SelectPlan> plan)
        : m_connection(std::move(connection)), m_plan(std::move(plan)) {}
    virtual ~RecordsetPrivate() = default;
    Q_DISABLE_COPY_MOVE(RecordsetPrivate)

    /// Hole: the current row was deleted; `position` is that of the row that followed it.
    enum class Place { Before, Row, Hole, Behind };
    Place place = Place::Behind;
    std::size_t position = 0;
    bool noMatch = false;

    [[nodiscard]] const SelectPlan& plan() const { return *m_plan; }
    [[nodiscard]] Connection& connection() const { return *m_connection; }

    [[nodiscard]] virtual std::size_t count() const = 0;
    virtual void requery() = 0; ///< takes the rows anew; the caller sets the place
    [[nodiscard]] virtual std::optional<std::size_t> find(const QString& criterion, SearchRange range) = 0;
    [[nodiscard]] virtual Value value(int column) = 0; ///< of the row in work, or else of the current row
    [[nodiscard]] virtual qint64 bookmark() const = 0;
    [[nodiscard]] virtual std::optional<std::size_t> positionOf(qint64 bookmark) const = 0;
    virtual void leaveRow() {} ///< called before every move: gives up the row in work

    // Changes: refused unless overridden.
    virtual void addNew();
    virtual void edit();
    virtual void setValue(int column, const Value& value);
    virtual void update();
    virtual void cancelUpdate();
    virtual void deleteRow();
    [[nodiscard]] virtual qint64 lastModified() const;

    void goTo(std::size_t row) {
        place = Place::Row;
        position = row;
    }
    void goToFirst() {
        place = count() > 0 ? Place::Row : Place::Behind;
        position = 0;
    }
    /// Error 3021 without a current row, 3167 where it was deleted.
    void requireRow() const;

private:
    std::shared_ptr<Connection> m_connection;
    std::shared_ptr<const SelectPlan> m_plan;
};

/// Opens the cursor that a statement calls for, on its first row.
[[nodiscard]] std::unique_ptr<RecordsetPrivate> openCursor(const std::shared_ptr<Connection>& connection,
                                                           const QString& statement);

} // namespace dao
