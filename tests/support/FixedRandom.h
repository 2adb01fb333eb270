#pragma once

#include "FormContext.h"

#include <QList>

namespace lingomat {

/// Random numbers that are known beforehand. Without a list of draws it yields an endless sequence, the same
/// in every run; with one it yields these draws, and drawing more ends the test.
class FixedRandom final : public RandomSource {
public:
    FixedRandom() = default;
    explicit FixedRandom(QList<double> draws) { setDraws(std::move(draws)); }

    void setDraws(QList<double> draws);
    [[nodiscard]] int reseeds() const { return m_reseeds; }
    [[nodiscard]] int drawn() const { return m_drawn; }

    void reseed() override { ++m_reseeds; }
    [[nodiscard]] double next() override;

private:
    QList<double> m_draws;
    bool m_endless = true;
    quint64 m_sequence = 1;
    int m_reseeds = 0;
    int m_drawn = 0;
};

} // namespace lingomat
