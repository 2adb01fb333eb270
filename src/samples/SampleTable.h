#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace lingomat {

/// One line of a table file: its cells, and where it stands, for messages.
class SampleRow {
public:
    SampleRow(QString file, qsizetype line, QStringList cells)
        : m_file(std::move(file)), m_line(line), m_cells(std::move(cells)) {}

    [[nodiscard]] qsizetype size() const { return m_cells.size(); }
    /// A cell of at most `limit` UTF-16 units, possibly empty.
    [[nodiscard]] QString text(qsizetype column, qsizetype limit) const;
    /// The same, not empty.
    [[nodiscard]] QString requiredText(qsizetype column, qsizetype limit) const;
    /// A whole number in the range.
    [[nodiscard]] int number(qsizetype column, int lowest, int highest) const;

    /// Throws SampleError with file and line before the reason.
    [[noreturn]] void fail(const QString& reason) const;

private:
    QString m_file;
    qsizetype m_line;
    QStringList m_cells;
};

/// Reads lines of cells parted by tabs, as many as there are columns. Where the columns have names the first
/// line holds them. Throws SampleError: no such file, no UTF-8, another number of cells, another header, a
/// character that is not in composed form, blanks at the end of a cell.
[[nodiscard]] QList<SampleRow> readSampleTable(const QString& path, const QStringList& header);
[[nodiscard]] QList<SampleRow> readSampleTable(const QString& path, qsizetype columnCount);

} // namespace lingomat
