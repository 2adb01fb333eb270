#include "FixedRandom.h"

#include <stdexcept>

namespace lingomat {

void FixedRandom::setDraws(QList<double> draws) {
    m_draws = std::move(draws);
    m_endless = false;
}

double FixedRandom::next() {
    ++m_drawn;
    if (m_endless) {
        // Knuth's multiplier; the upper 32 bits are the good ones.
        m_sequence = m_sequence * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(m_sequence >> 32) / 4294967296.0;
    }
    if (m_draws.isEmpty())
        throw std::out_of_range("more random numbers drawn than the test foresaw");
    return m_draws.takeFirst();
}

} // namespace lingomat
