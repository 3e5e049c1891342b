#include "CountedBuild.h"

#include "ElementReader.h"
#include "LimitWay.h"
#include "OurWay.h"

// callgrind knows it by this name.
extern "C" __attribute__((noinline, visibility("default"))) void
benchCountedReadAndBuild(bench::Way& way)
{
    way.run(bench::Step::Read);
    way.run(bench::Step::Build);
}

namespace bench {
namespace {

void leadLife(Way& way)
{
    for (const Step step : allSteps) {
        if (!way.has(step))
            continue;
        way.prepare(step);
        way.run(step);
    }
}

void count(Way& way)
{
    constexpr int livesBefore = 3;
    for (int i = 0; i < livesBefore; ++i)
        leadLife(way);
    benchCountedReadAndBuild(way);
    way.run(Step::Delete);
}

} // namespace

void runCountedBuild(const CardHost& host, const Card& card, bool limit)
{
    OurWay ours(host, card, "word");
    if (!limit) {
        count(ours);
        return;
    }
    ours.read();
    ours.build();
    const Element content = readElement(ours.item());
    LimitWay byHand(card, content, QStringLiteral("word"));
    count(byHand);
}

} // namespace bench
