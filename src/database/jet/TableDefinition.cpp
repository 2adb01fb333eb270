#include "TableDefinition.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr qint64 NextPage = 4;
constexpr qint64 ContinuationHeader = 8;
/// 255 columns with names of 64 characters, and 32 indexes, need no more than eight.
constexpr int MostPages = 32;

constexpr int FixedFlag = 1;
constexpr int AutoNumberFlag = 4;

/// The pages of a definition in a row, as if they were one.
QByteArray joinedPages(const PageFile& file, quint32 first) {
    QByteArray joined = file.page(first, PageType::Definition);
    QSet<quint32> seen{first};
    for (quint32 next = ByteView(joined).u32(NextPage); next != 0;) {
        if (seen.contains(next) || seen.size() >= MostPages)
            damaged(u"Its definition has no end."_s);
        seen.insert(next);
        const QByteArray page = file.page(next, PageType::Definition);
        next = ByteView(page).u32(NextPage);
        joined += page.sliced(ContinuationHeader);
    }
    return joined;
}

/// Length of a field of that type; 0 where the definition tells it.
int lengthOf(ColumnType type) {
    switch (type) {
    case ColumnType::Byte: return 1;
    case ColumnType::Integer: return 2;
    case ColumnType::Long:
    case ColumnType::Single: return 4;
    case ColumnType::Currency:
    case ColumnType::Double:
    case ColumnType::DateTime: return 8;
    case ColumnType::Guid: return 16;
    case ColumnType::Numeric: return 17;
    default: return 0;
    }
}

ColumnType columnType(quint8 number) {
    switch (const auto type = static_cast<ColumnType>(number)) {
    case ColumnType::Boolean:
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
    case ColumnType::Currency:
    case ColumnType::Single:
    case ColumnType::Double:
    case ColumnType::DateTime:
    case ColumnType::Binary:
    case ColumnType::Text:
    case ColumnType::LongBinary:
    case ColumnType::Memo:
    case ColumnType::Guid:
    case ColumnType::Numeric: return type;
    }
    damaged(u"Its definition has a column of an unknown type."_s);
}

StoredColumn readColumn(const Layout& layout, ByteView bytes) {
    StoredColumn column;
    column.type = columnType(bytes.u8(0));
    column.number = bytes.u16(layout.columnNumber);
    const quint8 flags = bytes.u8(layout.columnFlags);
    column.isAutoNumber = (flags & AutoNumberFlag) != 0;
    const int size = bytes.u16(layout.columnSize);
    column.size = column.type == ColumnType::Text ? size / layout.unitLength : size;
    // The Null mask holds a Boolean.
    column.isFixed = (flags & FixedFlag) != 0 || column.type == ColumnType::Boolean;
    column.fixedOffset = bytes.u16(layout.columnFixedOffset);
    if (column.type != ColumnType::Boolean)
        column.fixedLength = lengthOf(column.type) > 0 ? lengthOf(column.type) : size;
    column.variableIndex = bytes.u16(layout.columnVariableIndex);
    return column;
}

bool isPrintable(QStringView name) {
    return !name.isEmpty() &&
           std::all_of(name.begin(), name.end(), [](QChar character) { return character >= u' '; });
}

/// No two columns share a name, a number or a place: a row could be made to grow by sharing.
void requireDistinct(const std::vector<StoredColumn>& columns) {
    QSet<QString> names;
    QSet<int> numbers;
    QSet<int> places;
    for (const StoredColumn& column : columns) {
        const auto before = names.size() + numbers.size() + places.size();
        names.insert(column.name.toCaseFolded());
        numbers.insert(column.number);
        if (!column.isFixed)
            places.insert(column.variableIndex);
        const auto added = names.size() + numbers.size() + places.size() - before;
        if (added != (column.isFixed ? 2 : 3) || column.number >= MostColumns || !isPrintable(column.name))
            damaged(u"The columns of its definition contradict each other."_s);
    }
}

std::vector<StoredColumn> readColumns(const Layout& layout, const TextDecoder& decoder, ByteView definition) {
    const int count = definition.u16(layout.tableColumnCount);
    if (count < 1 || count > MostColumns)
        damaged(u"Its definition has an impossible number of columns."_s);
    const qint64 start =
        layout.tableColumns + qint64{definition.u32(layout.tableIndexCount)} * layout.indexLength;
    std::vector<StoredColumn> columns;
    for (int i = 0; i < count; ++i)
        columns.push_back(readColumn(
            layout, definition.slice(start + qint64{i} * layout.columnLength, layout.columnLength)));
    qint64 at = start + qint64{count} * layout.columnLength;
    for (StoredColumn& column : columns) {
        const int length = layout.countLength == 1 ? definition.u8(at) : definition.u16(at);
        at += layout.countLength;
        column.name = decoder.decode(definition.slice(at, length));
        at += length;
    }
    requireDistinct(columns);
    std::sort(columns.begin(), columns.end(),
              [](const StoredColumn& a, const StoredColumn& b) { return a.number < b.number; });
    return columns;
}

} // namespace

const StoredColumn* TableDefinition::findColumn(QStringView name) const {
    const auto found = std::find_if(columns.begin(), columns.end(), [name](const StoredColumn& column) {
        return column.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == columns.end() ? nullptr : &*found;
}

TableDefinition readDefinition(const PageFile& file, const TextDecoder& decoder, quint32 page) {
    const QByteArray bytes = joinedPages(file, page);
    const ByteView view(bytes);
    const Layout& layout = file.layout();
    return {.page = page,
            .rowCount = view.u32(layout.tableRowCount),
            .usageMap = RowPlace::at(view, layout.tableUsageMap),
            .columns = readColumns(layout, decoder, view)};
}

} // namespace jet
