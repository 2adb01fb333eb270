#include "Report.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

/// The name without what the library appends to it ("/repeats:5").
std::string plainName(const benchmark::BenchmarkReporter::Run& run) {
    return run.run_name.function_name;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

bool Report::ReportContext(const Context& /*context*/) {
    return true;
}

void Report::ReportRuns(const std::vector<Run>& runs) {
    std::map<std::string, std::vector<double>> times;
    std::map<std::string, std::vector<double>> processorTimes;
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        if (run.error_occurred) {
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            continue;
        }
        const double iterations = static_cast<double>(run.iterations);
        times[plainName(run)].push_back(run.real_accumulated_time / iterations * 1000);
        processorTimes[plainName(run)].push_back(run.cpu_accumulated_time / iterations * 1000);
    }
    for (const auto& [name, values] : times) {
        m_milliseconds[name] = median(values);
        std::printf("  %-24s %10.3f ms, of these %10.3f ms at work\n", name.c_str(), m_milliseconds[name],
                    median(processorTimes[name]));
    }
    std::fflush(stdout);
}

double Report::milliseconds(const std::string& name) const {
    return m_milliseconds.at(name);
}

void Report::figure(const char* what, double value, double target, const char* unit) {
    const bool met = value <= target;
    m_missed += met ? 0 : 1;
    std::printf("%-52s %9.2f %-4s  at most %6.2f  %s\n", what, value, unit, target, met ? "met" : "MISSED");
}
