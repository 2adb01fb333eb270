#pragma once

#include <QDate>

#include <functional>
#include <memory>

namespace lingomat {

class ColumnOptions;
class Progress;
class Prompts;
class SettingsStore;
class ValueLists;
struct SharedState;

/// A source of random numbers that can be seeded from the clock.
class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual void reseed() = 0;
    /// A number from the half-open range [0, 1), evenly distributed.
    [[nodiscard]] virtual double next() = 0;
};

/// A Mersenne twister seeded from the system's clock.
class ClockSeededRandom final : public RandomSource {
public:
    ClockSeededRandom();
    ~ClockSeededRandom() override;
    Q_DISABLE_COPY_MOVE(ClockSeededRandom)
    void reseed() override;
    [[nodiscard]] double next() override;

private:
    struct Engine;
    std::unique_ptr<Engine> m_engine;
};

/// What every form is given. Application owns all of it and outlives the forms.
struct FormContext {
    SharedState& state;
    Prompts& prompts;
    SettingsStore& settings;
    ValueLists& values;
    ColumnOptions& columns;
    Progress& progress;
    RandomSource& random;
    std::function<QDate()> today;
};

} // namespace lingomat
