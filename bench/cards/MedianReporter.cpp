#include "MedianReporter.h"

namespace bench {

bool MedianReporter::ReportContext(const Context&)
{
    return true;
}

void MedianReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.aggregate_name != "median")
            continue;
        for (const auto& [name, counter] : run.counters)
            medians_[run.run_name.function_name][name] = counter.value;
    }
}

double MedianReporter::median(const std::string& benchmark, const std::string& counter) const
{
    return medians_.at(benchmark).at(counter);
}

} // namespace bench
