#include "Row.h"

namespace bench {
namespace {

using Value = std::optional<double>;

Row timeRow(Step step)
{
    return {titleOf(step), 1,
            [step](const WayResult& way, const CardResult&) { return way.time(step); }};
}

Row sumRow(const char* title, const std::vector<Step>& steps)
{
    return {title, 1,
            [steps](const WayResult& way, const CardResult&) { return sumOf(way, steps); }};
}

Row memoryRow(const char* title, std::int64_t (*get)(const LifeMemory&))
{
    return {title, 0, [get](const WayResult& way, const CardResult&) {
                return Value(static_cast<double>(get(way.memory)));
            }};
}

std::vector<Row> timeRows()
{
    std::vector<Row> rows;
    for (const Step step : allSteps) {
        rows.push_back(timeRow(step));
        if (step == Step::Build)
            rows.push_back(sumRow("read + build", {Step::Read, Step::Build}));
        if (step == Step::FirstPaint)
            rows.push_back(sumRow("until painted", {Step::Read, Step::Build, Step::FirstPaint}));
    }
    return rows;
}

std::vector<Row> memoryRows()
{
    return {
        memoryRow("allocations, built", [](const LifeMemory& it) { return it.built.allocations; }),
        memoryRow("live bytes, built", [](const LifeMemory& it) { return it.built.liveBytes; }),
        memoryRow("live bytes, painted", [](const LifeMemory& it) { return it.painted.liveBytes; }),
        memoryRow("kept bytes", [](const LifeMemory& it) { return it.kept.liveBytes; }),
        {"kept per element", 0,
         [](const WayResult& way, const CardResult& card) {
             return Value(static_cast<double>(way.memory.kept.liveBytes) / card.elements);
         }},
    };
}

std::vector<Row> makeRows()
{
    std::vector<Row> rows = timeRows();
    for (Row& row : memoryRows())
        rows.push_back(std::move(row));
    rows.push_back({"picture differs, %", 1, [](const WayResult& way, const CardResult&) {
                        return Value(way.pictureDifference);
                    }});
    return rows;
}

} // namespace

const std::vector<Row>& allRows()
{
    static const std::vector<Row> rows = makeRows();
    return rows;
}

std::optional<double> sumOf(const WayResult& way, const std::vector<Step>& steps)
{
    double sum = 0;
    for (const Step step : steps) {
        if (!way.time(step))
            return std::nullopt;
        sum += *way.time(step);
    }
    return sum;
}

} // namespace bench
