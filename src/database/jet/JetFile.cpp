#include "JetFile.h"

#include "CellDecoder.h"
#include "LongValue.h"
#include "PropertyBlock.h"
#include "RowView.h"
#include "TablePages.h"

#include <QFile>
#include <QMap>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr int MostTables = 2048;
constexpr int MostMoves = 16; ///< of one row; one is usual
constexpr quint32 SystemFlags = 0x80000002;
constexpr qint64 TableType = 1;
constexpr quint32 PageMask = 0x00FFFFFF;
/// A row with its slot needs more bytes than that.
constexpr qint64 FewestBytesPerRow = 4;

std::unique_ptr<QIODevice> openFile(const QString& path) {
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw Error(Problem::Device, u"The system does not let it be read."_s);
    return file;
}

/// A table as the list of tables tells it.
struct ListedTable {
    QString name;
    quint32 page = 0;
    PropertyBlock properties;
};

} // namespace

class JetFile::Private {
public:
    explicit Private(std::unique_ptr<QIODevice> device)
        : m_file(std::move(device)), m_decoder(m_file.layout().version, m_file.codePage()) {
        readTableList();
    }

    [[nodiscard]] int version() const { return m_file.layout().version; }
    [[nodiscard]] const ListedTable& listed(const QString& name) const;
    [[nodiscard]] TableDefinition definition(const ListedTable& table) const {
        return readDefinition(m_file, m_decoder, table.page);
    }
    Tally readRows(const TableDefinition& table, const std::function<void(const Row&)>& take) const;

    QStringList names;
    Tally listTally;

private:
    using RowTaker = std::function<void(const RowView&)>;

    void readTableList();
    void addListedTable(const TableDefinition& catalogue, const RowView& row, UsedPlaces& longValues);
    [[nodiscard]] PropertyBlock properties(const StoredColumn* column, const RowView& row,
                                           UsedPlaces& longValues) const;
    [[nodiscard]] Cell cell(const StoredColumn& column, const RowView& row, UsedPlaces& longValues) const;
    Tally eachRow(const TableDefinition& table, const RowTaker& take) const;

    PageFile m_file;
    TextDecoder m_decoder;
    QMap<QString, ListedTable> m_tables; ///< by name, case folded
};

namespace {

/// Walks the rows of one table, page by page, and counts what it could not read.
class RowWalk {
public:
    RowWalk(const PageFile& file, const TableDefinition& table,
            const std::function<void(const RowView&)>& take)
        : m_file(file), m_table(table), m_take(take), m_pages(file.pageCount(), false) {}

    Tally run() {
        const auto mapped = pagesByUsageMap(m_file, m_table);
        m_mayLackPages = m_file.isCutOff() || (mapped && !mapped->isComplete);
        if (mapped)
            readPages(mapped->pages);
        // A map that leaves out rows is no use either.
        if (!mapped || m_read < expected() || (expected() == 0 && m_read == 0))
            readPages(pagesByOwner(m_file, m_table));
        return tally();
    }

private:
    /// Rows that there should be; 0 where that is not known, or told as more than the file can hold.
    [[nodiscard]] qint64 expected() const { return isPlausible() ? m_table.rowCount : 0; }
    [[nodiscard]] bool isPlausible() const {
        return m_table.rowCount <= qint64{m_file.pageCount()} * m_file.layout().pageSize / FewestBytesPerRow;
    }

    [[nodiscard]] Tally tally() const {
        const bool isKnown = expected() > 0;
        Tally tally;
        tally.rowsRead = m_read;
        tally.rowsLost = isKnown ? std::max(qint64{0}, expected() - m_read) : m_damagedRows;
        const bool hasDamage = m_damagedRows > 0 || m_damagedPages > 0 || m_mayLackPages;
        tally.isUncertain = !isPlausible() || (isKnown && m_read > expected()) || (hasDamage && !isKnown) ||
                            (m_damagedRows > 0 && tally.rowsLost == 0);
        return tally;
    }

    void readPages(const std::vector<quint32>& pages) {
        for (const quint32 page : pages) {
            if (m_pages[page])
                continue;
            m_pages[page] = true;
            guarded(m_damagedPages, [this, page] { readPage(page); });
        }
    }

    void readPage(quint32 number) {
        const DataPage page(m_file, number);
        if (page.isDamaged())
            ++m_damagedPages;
        for (int row = 0; row < page.rowCount(); ++row) {
            if (page.isHidden(row))
                continue;
            guarded(m_damagedRows, [this, number, row] { readRow({number, row}); });
        }
    }

    void readRow(RowPlace place) {
        for (int moves = 0; moves <= MostMoves; ++moves) {
            if (m_file.owner(place.page) != m_table.page)
                damaged(u"A row was moved to a page of another table."_s);
            const DataPage page(m_file, place.page);
            const ByteView bytes = page.row(place.row);
            if (!m_used.add(place))
                damaged(u"Two rows were moved to the same place."_s);
            if (!page.isPointer(place.row)) {
                const RowView row(m_file.layout(), m_table, bytes);
                m_take(row);
                ++m_read;
                return;
            }
            place = RowPlace::at(bytes, 0);
        }
        damaged(u"A row was moved without end."_s);
    }

    /// Passes over what is damaged, and nothing else.
    template <typename Step>
    static void guarded(qint64& failures, const Step& step) {
        try {
            step();
        } catch (const Error& error) {
            if (error.problem() != Problem::Damaged)
                throw;
            ++failures;
        }
    }

    const PageFile& m_file;
    const TableDefinition& m_table;
    const std::function<void(const RowView&)>& m_take;
    std::vector<bool> m_pages; ///< those that were read
    UsedPlaces m_used;
    qint64 m_read = 0;
    qint64 m_damagedRows = 0;
    qint64 m_damagedPages = 0;
    bool m_mayLackPages = false;
};

} // namespace

Tally JetFile::Private::eachRow(const TableDefinition& table, const RowTaker& take) const {
    return RowWalk(m_file, table, take).run();
}

Cell JetFile::Private::cell(const StoredColumn& column, const RowView& row, UsedPlaces& longValues) const {
    const bool isSet = row.isSet(column);
    if (column.type == ColumnType::Boolean)
        return qint64{isSet ? -1 : 0};
    if (!isSet) {
        if (column.isAutoNumber)
            damaged(u"A row has no number."_s);
        return {};
    }
    const ByteView field = row.field(column);
    if (column.type == ColumnType::Memo) {
        const QByteArray value = readLongValue(m_file, field, longValues);
        return decodeCell(column.type, ByteView(value), m_decoder);
    }
    Cell value = decodeCell(column.type, field, m_decoder);
    if (const auto* text = std::get_if<QString>(&value);
        text != nullptr && column.size > 0 && text->size() > column.size)
        damaged(u"A text is longer than its column."_s);
    return value;
}

Tally JetFile::Private::readRows(const TableDefinition& table,
                                 const std::function<void(const Row&)>& take) const {
    UsedPlaces longValues;
    Row cells;
    return eachRow(table, [&](const RowView& row) {
        cells.clear();
        for (const StoredColumn& column : table.columns)
            cells.push_back(cell(column, row, longValues));
        take(cells);
    });
}

// The list of tables is a table itself.

void JetFile::Private::readTableList() {
    UsedPlaces longValues;
    const TableDefinition catalogue = readDefinition(m_file, m_decoder, CataloguePage);
    listTally = eachRow(catalogue, [&](const RowView& row) { addListedTable(catalogue, row, longValues); });
    if (listTally.rowsRead == 0)
        damaged(u"The list of its tables cannot be read."_s);
}

void JetFile::Private::addListedTable(const TableDefinition& catalogue, const RowView& row,
                                      UsedPlaces& longValues) {
    const auto number = [&](QStringView name) -> qint64 {
        const StoredColumn* const column = catalogue.findColumn(name);
        if (column == nullptr)
            damaged(u"The list of its tables lacks a column."_s);
        const Cell value = cell(*column, row, longValues);
        const auto* const held = std::get_if<qint64>(&value);
        return held == nullptr ? 0 : *held;
    };
    if (number(u"Type") != TableType || (static_cast<quint32>(number(u"Flags")) & SystemFlags) != 0)
        return;
    const StoredColumn* const nameColumn = catalogue.findColumn(u"Name");
    const Cell name = nameColumn == nullptr ? Cell() : cell(*nameColumn, row, longValues);
    const auto* const text = std::get_if<QString>(&name);
    const quint32 page = static_cast<quint32>(number(u"Id")) & PageMask;
    const bool isKnown = std::any_of(m_tables.begin(), m_tables.end(),
                                     [page](const ListedTable& table) { return table.page == page; });
    if (text == nullptr || text->isEmpty() || isKnown || m_tables.contains(text->toCaseFolded()))
        damaged(u"The list of its tables contradicts itself."_s);
    if (m_tables.size() >= MostTables)
        damaged(u"It has an impossible number of tables."_s);
    m_tables.insert(text->toCaseFolded(),
                    {*text, page, properties(catalogue.findColumn(u"LvProp"), row, longValues)});
    names.append(*text);
}

PropertyBlock JetFile::Private::properties(const StoredColumn* column, const RowView& row,
                                           UsedPlaces& longValues) const {
    if (column == nullptr)
        return {.ofTable = {}, .isDamaged = true};
    try {
        if (!row.isSet(*column))
            return {};
        const QByteArray value = readLongValue(m_file, row.field(*column), longValues);
        return value.isEmpty() ? PropertyBlock() : readProperties(ByteView(value), m_decoder);
    } catch (const Error& error) {
        if (error.problem() != Problem::Damaged)
            throw;
        return {.ofTable = {}, .isDamaged = true};
    }
}

const ListedTable& JetFile::Private::listed(const QString& name) const {
    const auto found = m_tables.find(name.toCaseFolded());
    if (found == m_tables.end())
        damaged(u"It has no table '%1'."_s.arg(name));
    return *found;
}

JetFile::JetFile(const QString& path) : JetFile(openFile(path)) {}
JetFile::JetFile(std::unique_ptr<QIODevice> device) : m_d(std::make_unique<Private>(std::move(device))) {}
JetFile::~JetFile() = default;

int JetFile::version() const {
    return m_d->version();
}

const QStringList& JetFile::tableNames() const {
    return m_d->names;
}

const Tally& JetFile::tableListTally() const {
    return m_d->listTally;
}

Table JetFile::table(const QString& name) const {
    const ListedTable& listed = m_d->listed(name);
    const TableDefinition definition = m_d->definition(listed);
    Table table;
    table.name = listed.name;
    table.columns = QList<Column>(definition.columns.begin(), definition.columns.end());
    table.properties = listed.properties.ofTable;
    table.propertiesAreDamaged = listed.properties.isDamaged;
    return table;
}

Tally JetFile::readRows(const QString& table, const std::function<void(const Row&)>& take) const {
    return m_d->readRows(m_d->definition(m_d->listed(table)), take);
}

} // namespace jet
