#include "Summary.h"

#include "Median.h"
#include "Row.h"

#include <numeric>

namespace bench {
namespace {

using Value = std::optional<double>;

Value ratio(const Value& one, const Value& other)
{
    if (!one || !other || *other <= 0)
        return std::nullopt;
    return *one / *other;
}

Value stepRatio(const CardResult& card, const std::vector<Step>& steps)
{
    return ratio(sumOf(card.ours(), steps), sumOf(card.limit(), steps));
}

Value builtPerElement(const WayResult& way, const CardResult& card)
{
    return ratio(sumOf(way, {Step::Read, Step::Build}), card.elements);
}

Value refreshPercent(const CardResult& card)
{
    const Value share =
        ratio(card.ours().time(Step::RefreshFirst), sumOf(card.ours(), {Step::Read, Step::Build}));
    return share ? Value(100 * *share) : share;
}

bool isExample(const CardResult& card)
{
    return card.name.rfind("example/", 0) == 0;
}

double meanOf(const std::vector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

SummaryLine lineOf(const CardResult& card)
{
    SummaryLine line {card.name, {}};
    for (const SummaryColumn& column : summaryColumns())
        line.values.push_back(column.value(card));
    return line;
}

SummaryLine lineOf(const std::string& title, const std::vector<CardResult>& cards,
                   double (*middle)(const std::vector<double>&))
{
    SummaryLine line {title, {}};
    for (const SummaryColumn& column : summaryColumns()) {
        std::vector<double> values;
        for (const CardResult& card : cards) {
            if (const Value value = column.value(card))
                values.push_back(*value);
        }
        line.values.push_back(values.empty() ? Value() : Value(middle(values)));
    }
    return line;
}

double medianOf(const std::vector<double>& values)
{
    return median(values);
}

} // namespace

const std::vector<SummaryColumn>& summaryColumns()
{
    static const std::vector<SummaryColumn> columns {
        {"elements", 0, [](const CardResult& card) { return Value(card.elements); }},
        {"us/elem.", 1, [](const CardResult& card) { return builtPerElement(card.ours(), card); }},
        {"limit's", 1, [](const CardResult& card) { return builtPerElement(card.limit(), card); }},
        {"built", 2,
         [](const CardResult& card) {
             return stepRatio(card, {Step::Read, Step::Build});
         }},
        {"painted", 2, [](const CardResult& card) { return stepRatio(card, {Step::FirstPaint}); }},
        {"scene", 2, [](const CardResult& card) { return stepRatio(card, {Step::RepaintScene}); }},
        {"items", 2, [](const CardResult& card) { return stepRatio(card, {Step::RepaintItems}); }},
        {"height", 2, [](const CardResult& card) { return stepRatio(card, {Step::OtherHeight}); }},
        {"delete", 2, [](const CardResult& card) { return stepRatio(card, {Step::Delete}); }},
        {"refresh %", 1, refreshPercent},
        {"live", 2,
         [](const CardResult& card) {
             return ratio(static_cast<double>(card.ours().memory.built.liveBytes),
                          static_cast<double>(card.limit().memory.built.liveBytes));
         }},
        {"kept/elem.", 0,
         [](const CardResult& card) {
             return ratio(static_cast<double>(card.ours().memory.kept.liveBytes), card.elements);
         }},
    };
    return columns;
}

std::vector<SummaryLine> summaryOf(const std::vector<CardResult>& cards)
{
    std::vector<SummaryLine> lines;
    std::vector<CardResult> examples;
    for (const CardResult& card : cards) {
        lines.push_back(lineOf(card));
        if (isExample(card))
            examples.push_back(card);
    }
    if (examples.size() > 1) {
        lines.push_back(lineOf("median of the examples", examples, medianOf));
        lines.push_back(lineOf("mean of the examples", examples, meanOf));
    }
    return lines;
}

} // namespace bench
