#include "GridRow.h"

namespace lingomat {

QStringView GridRow::text(int col) const {
    const auto index = static_cast<size_t>(col);
    if (index >= m_ends.size())
        return {};
    const size_t start = startOf(index);
    return QStringView(m_texts.data() + start, static_cast<qsizetype>(m_ends[index] - start));
}

void GridRow::setText(int col, QStringView text) {
    const auto index = static_cast<size_t>(col);
    if (index >= m_ends.size()) {
        if (text.isEmpty())
            return;
        m_ends.resize(index + 1, static_cast<quint32>(m_texts.size()));
    }
    const size_t start = startOf(index);
    const size_t before = m_ends[index] - start;
    const auto length = static_cast<size_t>(text.size());
    m_texts.replace(start, before, text.utf16(), length);
    if (length == before)
        return;
    for (size_t i = index; i < m_ends.size(); ++i)
        m_ends[i] = static_cast<quint32>(m_ends[i] + length - before);
}

void GridRow::clearTexts() {
    m_texts.clear();
    m_ends.clear();
}

void GridRow::truncate(int cols) {
    const auto count = static_cast<size_t>(cols);
    if (m_ends.size() > count) {
        m_ends.resize(count);
        m_texts.resize(count == 0 ? 0 : m_ends.back());
    }
    if (m_looks)
        m_looks->erase(m_looks->lower_bound(cols), m_looks->end());
}

const CellLook* GridRow::look(int col) const {
    if (!m_looks)
        return nullptr;
    const auto found = m_looks->find(col);
    return found == m_looks->end() ? nullptr : &found->second;
}

CellLook& GridRow::changeLook(int col) {
    if (!m_looks)
        m_looks = std::make_unique<Looks>();
    return (*m_looks)[col];
}

void GridRow::clearPictures() {
    if (!m_looks)
        return;
    for (auto& [col, look] : *m_looks)
        look.picture = {};
}

} // namespace lingomat
