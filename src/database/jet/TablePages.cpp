#include "TablePages.h"

using namespace Qt::StringLiterals;

namespace jet {

namespace {

/// Collects the table's own pages from stretches of bits, one a page.
class PageCollector {
public:
    PageCollector(const PageFile& file, const TableDefinition& table) : m_file(file), m_table(table) {}

    void add(qint64 firstPage, ByteView bitmap) {
        const QByteArrayView bytes = bitmap.bytes();
        for (qsizetype i = 0; i < bytes.size(); ++i) {
            const qint64 page = firstPage + 8 * i;
            addByte(page, static_cast<quint8>(bytes[i]));
        }
    }
    [[nodiscard]] MappedPages take() { return std::move(m_mapped); }

private:
    void addByte(qint64 firstPage, quint8 bits) {
        for (int bit = 0; bits != 0; ++bit, bits >>= 1) {
            if ((bits & 1) == 0)
                continue;
            const qint64 page = firstPage + bit;
            if (page >= m_file.pageCount())
                m_mapped.isComplete = false;
            else if (m_file.owner(static_cast<quint32>(page)) == m_table.page)
                m_mapped.pages.push_back(static_cast<quint32>(page));
        }
    }

    const PageFile& m_file;
    const TableDefinition& m_table;
    MappedPages m_mapped;
};

/// One stretch of bits, in the map's row.
void addInlineMap(ByteView map, PageCollector& pages) {
    constexpr qint64 firstPage = 1;
    constexpr qint64 bitmap = 5;
    pages.add(map.u32(firstPage), map.from(bitmap));
}

/// Stretches of bits on pages of their own, whose numbers the map's row holds.
void addReferredMap(const PageFile& file, ByteView map, PageCollector& pages) {
    constexpr qint64 bitmap = 4;
    const qint64 pagesPerMap = (file.layout().pageSize - bitmap) * 8;
    qint64 firstPage = 0;
    for (qint64 at = 1; at + 4 <= map.size() && firstPage < file.pageCount(); at += 4) {
        if (const quint32 number = map.u32(at); number != 0) {
            const QByteArray page = file.page(number, PageType::UsageMap);
            pages.add(firstPage, ByteView(page).from(bitmap));
        }
        firstPage += pagesPerMap;
    }
}

} // namespace

std::optional<MappedPages> pagesByUsageMap(const PageFile& file, const TableDefinition& table) {
    try {
        const DataPage page(file, table.usageMap.page);
        const ByteView map = page.row(table.usageMap.row);
        PageCollector pages(file, table);
        switch (map.u8(0)) {
        case 0: addInlineMap(map, pages); break;
        case 1: addReferredMap(file, map, pages); break;
        default: return std::nullopt;
        }
        return pages.take();
    } catch (const Error& error) {
        if (error.problem() != Problem::Damaged)
            throw;
        return std::nullopt;
    }
}

std::vector<quint32> pagesByOwner(const PageFile& file, const TableDefinition& table) {
    std::vector<quint32> pages;
    for (quint32 page = 0; page < file.pageCount(); ++page)
        if (file.owner(page) == table.page)
            pages.push_back(page);
    return pages;
}

} // namespace jet
