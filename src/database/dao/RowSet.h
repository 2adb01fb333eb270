#pragma once

#include "Evaluator.h"
#include "Sqlite.h"

#include <QString>

#include <vector>

namespace dao {

/// Rows held in memory: their texts in one buffer, their cells in one array.
class RowSet {
public:
    explicit RowSet(int columns) : m_columns(static_cast<std::size_t>(columns)) {}

    void clear();
    /// Appends the statement's present row, from the given column on. Columns that are not wanted stay Null;
    /// an empty `wanted` stands for all.
    void append(const Statement& statement, int firstColumn, const std::vector<bool>& wanted = {});

    [[nodiscard]] std::size_t size() const { return m_rows; }
    [[nodiscard]] criteria::CellView cell(std::size_t row, int column) const;
    [[nodiscard]] Value value(std::size_t row, int column) const;

private:
    struct Cell {
        criteria::CellView::Kind kind;
        quint32 length; ///< of a text
        union {
            qint64 integer;
            double real;
            qint64 offset; ///< of a text in m_text
        };
    };
    void appendText(QByteArrayView utf8, Cell& cell);

    std::size_t m_columns;
    std::size_t m_rows = 0;
    std::vector<Cell> m_cells;
    QString m_text;
};

/// One row of a set, for the evaluator.
class RowSetView final : public criteria::RowView {
public:
    RowSetView(const RowSet& rows, std::size_t row) : m_rows(rows), m_row(row) {}
    [[nodiscard]] criteria::CellView cell(int column) const override { return m_rows.cell(m_row, column); }

private:
    const RowSet& m_rows;
    std::size_t m_row;
};

} // namespace dao
