#include "KeyRecord.h"

#include "EngineError.h"

namespace lingomat {

namespace {

size_t bitOf(qint16 key) {
    return static_cast<quint16>(key);
}

} // namespace

void KeyRecord::followCount() {
    const auto count = static_cast<size_t>(m_count);
    if (m_keys.size() <= count)
        return;
    m_keys.resize(count);
    m_known.reset();
    for (const qint16 key : m_keys)
        m_known.set(bitOf(key));
}

void KeyRecord::append(qint16 key) {
    followCount();
    const qint16 count = dao::toInteger16(m_count + 1);
    m_keys.push_back(key);
    m_known.set(bitOf(key));
    m_count = count;
}

bool KeyRecord::contains(qint16 key) {
    followCount();
    return m_known.test(bitOf(key));
}

std::span<const qint16> KeyRecord::keys() {
    followCount();
    return m_keys;
}

void KeyRecord::removeAllOf(KeyRecord& other) {
    followCount();
    other.followCount();
    std::erase_if(m_keys, [&other](qint16 key) { return other.m_known.test(bitOf(key)); });
    m_known &= ~other.m_known;
    m_count = static_cast<qint16>(m_keys.size());
}

void KeyRecord::clear() {
    m_count = 0;
    followCount();
}

} // namespace lingomat
