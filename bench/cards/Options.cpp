#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace bench {
namespace {

constexpr const char* allCards = ".";
constexpr const char* quickCards = "^(a|example/receipt|texts/100)$";
constexpr const char* allRounds = "31";
constexpr const char* quickRounds = "11";

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Measures what cards cost, beside other ways to show the same."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("quick"), QStringLiteral("Three cards and 11 rounds.")},
        {QStringLiteral("filter"), QStringLiteral("The cards that have this in their names."),
         QStringLiteral("regular expression")},
        {QStringLiteral("rounds"), QStringLiteral("How often each card is measured (31)."),
         QStringLiteral("number")},
        {QStringLiteral("json"), QStringLiteral("Writes the results to a file, too."),
         QStringLiteral("file")},
        {QStringLiteral("cards"), QStringLiteral("The folder of the example cards."),
         QStringLiteral("folder"), QStringLiteral(PLIX_BENCH_EXAMPLES "/cards")},
        {QStringLiteral("images"), QStringLiteral("The folder of their pictures."),
         QStringLiteral("folder"), QStringLiteral(PLIX_BENCH_EXAMPLES "/images")},
        {QStringLiteral("pictures"), QStringLiteral("Writes what each way paints to a folder."),
         QStringLiteral("folder")},
        {QStringLiteral("count"), QStringLiteral("Reads and builds one card, for callgrind."),
         QStringLiteral("card")},
        {QStringLiteral("limit"), QStringLiteral("With --count: by hand instead.")},
    });
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
        qFatal("--rounds takes a number from 1 on");
    return options;
}

} // namespace bench
