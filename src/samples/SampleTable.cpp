#include "SampleTable.h"

#include "ExpressionText.h"
#include "SampleError.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

constexpr QChar Tab = u'\t';

QString readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw SampleError(u"%1: %2"_s.arg(path, file.errorString()));
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(file.readAll());
    if (utf8.hasError())
        throw SampleError(u"%1: the file is not UTF-8"_s.arg(QFileInfo(path).fileName()));
    return text;
}

bool isControl(QChar character) {
    return character.category() == QChar::Other_Control;
}

void checkCell(const SampleRow& row, const QString& cell) {
    if (cell != cell.trimmed())
        row.fail(u"blanks at the ends of '%1'"_s.arg(cell));
    if (cell != cell.normalized(QString::NormalizationForm_C))
        row.fail(u"'%1' is not in composed form"_s.arg(cell));
    if (std::any_of(cell.begin(), cell.end(), isControl))
        row.fail(u"'%1' holds a control character"_s.arg(cell));
}

} // namespace

void SampleRow::fail(const QString& reason) const {
    throw SampleError(u"%1, line %2: %3"_s.arg(m_file, QString::number(m_line), reason));
}

QString SampleRow::text(qsizetype column, qsizetype limit) const {
    const QString& cell = m_cells.at(column);
    if (cell.size() > limit)
        fail(u"'%1' is longer than %2 characters"_s.arg(cell, QString::number(limit)));
    return cell;
}

QString SampleRow::requiredText(qsizetype column, qsizetype limit) const {
    QString cell = text(column, limit);
    if (cell.isEmpty())
        fail(u"column %1 is empty"_s.arg(column + 1));
    return cell;
}

int SampleRow::number(qsizetype column, int lowest, int highest) const {
    bool isNumber = false;
    const int value = m_cells.at(column).toInt(&isNumber);
    if (!isNumber || value < lowest || value > highest)
        fail(u"'%1' is no number from %2 to %3"_s.arg(m_cells.at(column), QString::number(lowest),
                                                      QString::number(highest)));
    return value;
}

QList<SampleRow> readSampleTable(const QString& path, qsizetype columnCount) {
    QStringList lines = readText(path).split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    QList<SampleRow> rows;
    rows.reserve(lines.size());
    for (const QString& line : std::as_const(lines)) {
        const QStringList cells = line.split(Tab);
        const SampleRow& row = rows.emplace_back(QFileInfo(path).fileName(), rows.size() + 1, cells);
        if (cells.size() != columnCount)
            row.fail(u"%1 cells instead of %2"_s.arg(cells.size()).arg(columnCount));
        for (const QString& cell : cells)
            checkCell(row, cell);
    }
    return rows;
}

QList<SampleRow> readSampleTable(const QString& path, const QStringList& header) {
    QList<SampleRow> rows = readSampleTable(path, header.size());
    if (rows.isEmpty())
        throw SampleError(u"%1: the file is empty"_s.arg(QFileInfo(path).fileName()));
    const SampleRow head = rows.takeFirst();
    for (qsizetype column = 0; column < header.size(); ++column)
        if (head.text(column, std::numeric_limits<qsizetype>::max()) != header[column])
            head.fail(u"column %1 is not '%2'"_s.arg(column + 1).arg(header[column]));
    return rows;
}

} // namespace lingomat
