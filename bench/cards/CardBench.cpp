#include "CardBench.h"

#include "ElementReader.h"
#include "Fail.h"
#include "HtmlWay.h"
#include "LabelWay.h"
#include "LimitWay.h"
#include "MedianReporter.h"
#include "OurWay.h"
#include "QuickWay.h"
#include "SameContent.h"
#include "ThreadClock.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QGraphicsItem>
#include <QRegularExpression>

namespace bench {
namespace {

// The first word that is worth a highlight.
QString wordOf(const QStringList& texts)
{
    static const QRegularExpression word(QStringLiteral("\\w{4,}"));
    const auto match = word.match(texts.join(QLatin1Char(' ')));
    return match.hasMatch() ? match.captured() : QStringLiteral("word");
}

void timeOnce(benchmark::State& state, Way& way, double clockOverhead)
{
    for (auto _ : state) {
        const StepTimes times = timeLife(way, clockOverhead);
        double sum = 0;
        for (const Step step : allSteps) {
            const double time = times[static_cast<std::size_t>(step)];
            state.counters[titleOf(step)] = time;
            sum += time;
        }
        state.SetIterationTime(sum / 1e6);
    }
}

} // namespace

CardBench::CardBench(const CardHost& host, const Card& card)
    : host_(host)
    , card_(card)
{
    readContent();
}

CardBench::~CardBench() = default;

void CardBench::readContent()
{
    OurWay way(host_, card_, {});
    way.read();
    way.build();
    content_ = readElement(way.item());
    word_ = wordOf(textsOf(content_));
}

void CardBench::addCounterparts()
{
    ways_.push_back(std::make_unique<OurWay>(host_, card_, word_.toStdString()));
    ways_.push_back(std::make_unique<LimitWay>(card_, content_, word_));
}

void CardBench::addAlternatives()
{
    ways_.push_back(std::make_unique<HtmlWay>(card_, content_));
    ways_.push_back(std::make_unique<QuickWay>(card_, content_));
    ways_.push_back(std::make_unique<LabelWay>(card_, content_));
}

CardResult CardBench::measure(int rounds, const QString& pictureFolder)
{
    CardResult result {card_.name, countOf(content_), {}};
    for (const auto& way : ways_)
        result.ways.push_back({way->name(), {}, {}, 0});
    check(result, pictureFolder);
    for (std::size_t i = 0; i < ways_.size(); ++i)
        result.ways[i].memory = weighLife(*ways_[i]);
    if (!result.limit().looksLikeOurs())
        fail(QString::fromStdString(card_.name)
             + QStringLiteral(": what is painted by hand looks different"));
    takeTimes(rounds, result);
    return result;
}

void CardBench::check(CardResult& result, const QString& pictureFolder)
{
    QImage ourPicture;
    for (std::size_t i = 0; i < ways_.size(); ++i) {
        Way& way = *ways_[i];
        for (const Step step : {Step::Read, Step::Build, Step::FirstPaint}) {
            way.prepare(step);
            way.run(step);
        }
        if (i == 0)
            ourPicture = way.picture();
        checkTexts(way);
        result.ways[i].pictureDifference = pictureDifference(ourPicture, way.picture());
        if (!pictureFolder.isEmpty())
            savePicture(way, pictureFolder);
        way.run(Step::Delete);
    }
}

void CardBench::checkTexts(const Way& way) const
{
    if (!haveSameTexts(textsOf(content_), way.texts()))
        fail(QString::fromStdString(card_.name) + QStringLiteral(": other texts are shown by ")
             + QLatin1String(way.name()));
}

void CardBench::savePicture(const Way& way, const QString& folder) const
{
    QString card = QString::fromStdString(card_.name);
    card.replace(QLatin1Char('/'), QLatin1Char('_'));
    const QString path =
        QStringLiteral("%1/%2_%3.png").arg(folder, card, QLatin1String(way.name()));
    if (!QDir().mkpath(folder) || !way.picture().save(path))
        fail(path + QStringLiteral(" cannot be written"));
}

void CardBench::takeTimes(int rounds, CardResult& result)
{
    const double overhead = clockOverhead();
    for (const auto& way : ways_) {
        benchmark::RegisterBenchmark(way->name(), timeOnce, std::ref(*way), overhead)
            ->Iterations(1)
            ->Repetitions(rounds)
            ->UseManualTime();
    }
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter, ".");
    benchmark::ClearRegisteredBenchmarks();
    for (std::size_t i = 0; i < ways_.size(); ++i) {
        for (const Step step : allSteps) {
            if (ways_[i]->has(step))
                result.ways[i].times[static_cast<std::size_t>(step)] =
                    reporter.median(ways_[i]->name(), titleOf(step));
        }
    }
}

} // namespace bench
