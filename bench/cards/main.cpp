// What cards cost, beside what the same costs by hand and in other ways.
#include "CardBench.h"
#include "CardHost.h"
#include "CountedBuild.h"
#include "ExampleCards.h"
#include "Fail.h"
#include "GeneratedCards.h"
#include "JsonReport.h"
#include "Options.h"
#include "TextReport.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

namespace bench {
namespace {

std::vector<Card> allCards(const Options& options)
{
    std::vector<Card> cards {sixteenTexts()};
    for (Card& card : exampleCards(options.cardFolder))
        cards.push_back(std::move(card));
    for (Card& card : generatedCards())
        cards.push_back(std::move(card));
    return cards;
}

std::vector<Card> wantedCards(const Options& options)
{
    const QRegularExpression filter(options.filter);
    std::vector<Card> cards = allCards(options);
    const auto isUnwanted = [&filter](const Card& card) {
        return !filter.match(QString::fromStdString(card.name)).hasMatch();
    };
    cards.erase(std::remove_if(cards.begin(), cards.end(), isUnwanted), cards.end());
    if (cards.empty())
        fail(QStringLiteral("no card has a name like that"));
    return cards;
}

void startGoogleBenchmark(char* program)
{
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char* arguments[] = {program, interleaving, nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
}

// Tables of tables take other ways forever.
bool hasAlternatives(const Card& card)
{
    return card.name.rfind("nested/", 0) != 0 && card.name.find("/1000") == std::string::npos;
}

void measure(const CardHost& host, const Options& options)
{
    TextReport report;
    report.writeHead(options.rounds);
    std::vector<CardResult> results;
    for (const Card& card : wantedCards(options)) {
        CardBench bench(host, card);
        bench.addCounterparts();
        if (hasAlternatives(card))
            bench.addAlternatives();
        results.push_back(bench.measure(options.rounds, options.pictureFolder));
        report.writeCard(results.back());
    }
    report.writeSummary(results);
    if (!options.jsonFile.isEmpty())
        writeJsonReport(options.jsonFile, options.rounds, results);
}

void count(const CardHost& host, const Options& options)
{
    for (const Card& card : allCards(options)) {
        if (QString::fromStdString(card.name) == options.counted) {
            runCountedBuild(host, card, options.countLimit);
            return;
        }
    }
    fail(QStringLiteral("there is no card ") + options.counted);
}

} // namespace
} // namespace bench

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", PLIX_BENCH_FONTS_CONF);
    // Qt Quick asks for it, and warns where there is none.
    const QTemporaryDir runtimeFolder;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toLocal8Bit());
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    const QApplication application(argc, argv);
    const bench::Options options = bench::readOptions();
    bench::startGoogleBenchmark(argv[0]);
    const bench::CardHost host(options.imageFolder);
    if (options.counted.isEmpty())
        bench::measure(host, options);
    else
        bench::count(host, options);
    return 0;
}
