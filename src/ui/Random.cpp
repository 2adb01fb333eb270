#include "FormContext.h"

#include <chrono>
#include <random>

namespace lingomat {

struct ClockSeededRandom::Engine {
    std::mt19937_64 twister;
};

ClockSeededRandom::ClockSeededRandom() : m_engine(std::make_unique<Engine>()) {
    ClockSeededRandom::reseed();
}

ClockSeededRandom::~ClockSeededRandom() = default;

void ClockSeededRandom::reseed() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    m_engine->twister.seed(static_cast<std::mt19937_64::result_type>(now.count()));
}

double ClockSeededRandom::next() {
    // The 53 bits that a double holds exactly, so that the result never rounds up to 1.
    return static_cast<double>(m_engine->twister() >> 11) * 0x1p-53;
}

} // namespace lingomat
