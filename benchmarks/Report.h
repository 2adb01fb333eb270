#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Collects the median of each benchmark, and prints figures beside their targets.
class Report : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Median time of a benchmark in milliseconds; nothing known: throws.
    [[nodiscard]] double milliseconds(const std::string& name) const;
    [[nodiscard]] bool has(const std::string& name) const { return m_milliseconds.contains(name); }

    /// Prints one line of the table.
    void figure(const char* what, double value, double target, const char* unit);
    /// Number of figures above their target.
    [[nodiscard]] int missed() const { return m_missed; }

private:
    std::map<std::string, double> m_milliseconds;
    int m_missed = 0;
};
