#include "DataPage.h"

#include "JetError.h"

using namespace Qt::StringLiterals;

namespace jet {

DataPage::DataPage(const PageFile& file, quint32 page)
    : m_bytes(file.page(page, PageType::Data)),
      m_view(m_bytes),
      m_slots(file.layout().dataRowCount + 2),
      m_rowCount(m_view.u16(file.layout().dataRowCount)) {
    m_isDamaged = slotsEnd(m_rowCount) > m_view.size();
    if (m_isDamaged)
        m_rowCount = plausibleRows();
}

/// Each row lies before the one before it, and behind the slots.
int DataPage::plausibleRows() const {
    int rows = 0;
    for (qint64 end = m_view.size(); slotsEnd(rows + 1) <= end; ++rows) {
        const qint64 start = slot(rows) & OffsetMask;
        if (start > end || start < slotsEnd(rows + 1))
            break;
        end = start;
    }
    return rows;
}

ByteView DataPage::row(int row) const {
    if (row < 0 || row >= m_rowCount)
        damaged(u"It refers to a row that does not exist."_s);
    const qint64 start = slot(row) & OffsetMask;
    const qint64 end = row == 0 ? m_view.size() : slot(row - 1) & OffsetMask;
    if (start < slotsEnd(m_rowCount))
        damaged(u"A row lies over the start of its page."_s);
    return m_view.slice(start, end - start);
}

} // namespace jet
