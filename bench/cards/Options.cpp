#include "Options.h"

#include "Fail.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace bench {
namespace {

constexpr const char* allCards = ".";
constexpr const char* quickCards = "^(a|example/receipt|texts/100)$";
constexpr const char* allRounds = "31";
constexpr const char* quickRounds = "11";

struct OptionRow {
    const char* name;
    const char* description;
    // Null for a switch.
    const char* valueName;
    const char* defaultValue;
};

constexpr OptionRow optionRows[] = {
    {"quick", "Three cards and 11 rounds.", nullptr, nullptr},
    {"filter", "The cards that have this in their names.", "regular expression", nullptr},
    {"rounds", "How often each card is measured (31).", "number", nullptr},
    {"json", "Writes the results to a file, too.", "file", nullptr},
    {"pictures", "Writes what each way paints to a folder.", "folder", nullptr},
    {"cards", "The folder of the example cards.", "folder", PLIX_BENCH_EXAMPLES "/cards"},
    {"images", "The folder of their pictures.", "folder", PLIX_BENCH_EXAMPLES "/images"},
    {"count", "Reads and builds one card, for callgrind.", "card", nullptr},
    {"limit", "With --count: by hand instead.", nullptr, nullptr},
};

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Measures what cards cost, beside other ways to show the same."));
    parser.addHelpOption();
    for (const OptionRow& row : optionRows) {
        parser.addOption({QString::fromLatin1(row.name), QString::fromLatin1(row.description),
                          QString::fromLatin1(row.valueName), QString::fromUtf8(row.defaultValue)});
    }
}

QString valueOr(const QCommandLineParser& parser, const QString& name, const char* otherwise)
{
    return parser.isSet(name) ? parser.value(name) : QString::fromLatin1(otherwise);
}

} // namespace

Options readOptions()
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(*QCoreApplication::instance());
    const bool isQuick = parser.isSet(QStringLiteral("quick"));
    Options options;
    options.cardFolder = parser.value(QStringLiteral("cards"));
    options.imageFolder = parser.value(QStringLiteral("images"));
    options.filter = valueOr(parser, QStringLiteral("filter"), isQuick ? quickCards : allCards);
    options.rounds =
        valueOr(parser, QStringLiteral("rounds"), isQuick ? quickRounds : allRounds).toInt();
    options.jsonFile = parser.value(QStringLiteral("json"));
    options.pictureFolder = parser.value(QStringLiteral("pictures"));
    options.counted = parser.value(QStringLiteral("count"));
    options.countLimit = parser.isSet(QStringLiteral("limit"));
    if (options.rounds < 1)
        fail(QStringLiteral("--rounds takes a number from 1 on"));
    return options;
}

} // namespace bench
