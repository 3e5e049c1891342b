#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace bench {

// Prints nothing and keeps the medians of the counters.
class MedianReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    double median(const std::string& benchmark, const std::string& counter) const;

private:
    std::map<std::string, std::map<std::string, double>> medians_;
};

} // namespace bench
