#include "check/WorkerPool.h"

#include <gtest/gtest.h>

namespace plix::test {
namespace {

using tool::Report;
using tool::WorkerPool;

const QString kCrash = QStringLiteral("The check of this card crashed");

// What the pool reports of each file: its name, or its name and why it failed.
QStringList reportsOf(const QStringList& files, const QString& program)
{
    QStringList reports;
    WorkerPool pool(files, {program, {}},
                    [&](const Report& report) { reports.append(report.file + report.failure); });
    pool.run();
    return reports;
}

// Some cards, of which those of these numbers have this name.
QStringList cardsWith(const QString& name, const std::vector<int>& numbers)
{
    QStringList cards;
    for (int i = 0; i < 30; ++i)
        cards.append(QStringLiteral("good%1").arg(i));
    for (const int number : numbers)
        cards[number] = name + QString::number(number);
    return cards;
}

// The others are reported as they are.
QStringList expectedReports(QStringList cards, const std::vector<int>& crashed)
{
    for (const int number : crashed)
        cards[number] += kCrash;
    return cards;
}

struct CrashRow {
    const char* test;
    const char* name;
    std::vector<int> numbers;
};

class WorkerCrash : public testing::TestWithParam<CrashRow> { };

TEST_P(WorkerCrash, CostsTheReportOfItsCardOnly)
{
    const QStringList cards = cardsWith(QLatin1String(GetParam().name), GetParam().numbers);
    EXPECT_EQ(reportsOf(cards, QStringLiteral(PLIX_CRASHING_CHECKER)),
              expectedReports(cards, GetParam().numbers));
}

INSTANTIATE_TEST_SUITE_P(Rows, WorkerCrash,
                         testing::Values(CrashRow {"None", "crash", {}},
                                         CrashRow {"InTheMiddle", "crash", {13}},
                                         CrashRow {"AtTheFirstCard", "crash", {0}},
                                         CrashRow {"AtTheLastCard", "crash", {29}},
                                         CrashRow {"InARow", "crash", {7, 8, 9, 10, 11}},
                                         CrashRow {"WhileItReports", "half", {0, 13, 29}}),
                         [](const auto& row) { return row.param.test; });

TEST(WorkerPool, FailsForEachCardIfItsProgramIsMissing)
{
    const QStringList cards = cardsWith({}, {});
    const QStringList reports = reportsOf(cards, QStringLiteral("no such program"));
    ASSERT_EQ(reports.size(), cards.size());
    for (int i = 0; i < reports.size(); ++i)
        EXPECT_TRUE(reports.at(i).startsWith(cards.at(i)) && reports.at(i) != cards.at(i));
}

} // namespace
} // namespace plix::test
