#include "check/CheckCommandLine.h"

#include "CardOptionParser.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>

namespace plix::tool {
namespace {

const QString kFormatOption = QStringLiteral("format");
const QString kAllowOption = QStringLiteral("allow");
const QString kStrictOption = QStringLiteral("strict");
const QString kNoLookOption = QStringLiteral("no-look");
const QString kWorkerOption = QStringLiteral("worker");

const QString kPhoneWording = QStringLiteral("chat_room_check_on_mobile");

struct FormatName {
    const char* name;
    CheckFormat format;
};

constexpr std::array kFormats = std::to_array<FormatName>({
    {"text", CheckFormat::Text},
    {"json", CheckFormat::Json},
    {"sarif", CheckFormat::Sarif},
});

const QString kCheckDescription = QStringLiteral(
    "\nFinds what is wrong with cards: errors (a part of the card is lost), warnings\n"
    "(something has no effect, or another one than it seems), and what looks wrong\n"
    "in the card as it is drawn. Each finding has its place, and a code, which\n"
    "docs/check.md explains. Looks are checked once a card has no errors.");

const QString kExitCodes = QStringLiteral("\nExit codes:\n"
                                          "  0  no errors; with --strict: no findings at all\n"
                                          "  1  errors; with --strict: any findings\n"
                                          "  2  wrong usage, or a file that cannot be read");

class CheckParser {
public:
    CheckParser();

    Request parse(const QStringList& arguments);

private:
    CheckOptions checkOptions() const;
    CheckFormat format() const;
    std::set<Rule> allowed() const;
    QVector<int> heights() const;

    CardOptionParser options_;
    QCommandLineParser& parser_;
};

CheckParser::CheckParser()
    : options_(kCheckCommand)
    , parser_(options_.parser())
{
    parser_.setApplicationDescription(kCheckDescription);
    parser_.addPositionalArgument(kCheckCommand, kCheckSummary);
    parser_.addPositionalArgument(
        QStringLiteral("CARD.json"),
        QStringLiteral("Cards, folders with *.json files, or - for standard input."),
        QStringLiteral("CARD.json..."));
    options_.addOption({QStringLiteral("h"), QStringLiteral("help")},
                       QStringLiteral("Shows this help."));
    options_.addOption({kFormatOption}, QStringLiteral("text, json or sarif (default: text)."),
                       QStringLiteral("FORMAT"));
    options_.addOption({kAllowOption},
                       QStringLiteral("Leaves findings of a code out, such as no-effect;\n"
                                      "may be given several times."),
                       QStringLiteral("CODE"));
    options_.addOption({kStrictOption}, QStringLiteral("Warnings fail the check, too."));
    options_.addOption({kNoLookOption}, QStringLiteral("Does not draw the cards: faster."));
    options_.addCardOptions();
    QCommandLineOption worker(kWorkerOption);
    worker.setFlags(QCommandLineOption::HiddenFromHelp);
    parser_.addOption(worker);
}

Request CheckParser::parse(const QStringList& arguments)
{
    if (!parser_.parse(arguments))
        options_.refuse(parser_.errorText());
    if (parser_.isSet(QStringLiteral("help")))
        return Information {parser_.helpText()
                            + QStringLiteral("\n--lang and --height may be given several times:"
                                             " each card is drawn for each of them.\n")
                            + QStringLiteral("\nExamples:\n") + kCheckExamples + kExitCodes};
    CheckOptions options = checkOptions();
    options.arguments = arguments.mid(2);
    return options;
}

CheckOptions CheckParser::checkOptions() const
{
    CheckOptions options;
    options.isWorker = parser_.isSet(kWorkerOption);
    options.inputs = parser_.positionalArguments().mid(1);
    if (options.inputs.isEmpty() && !options.isWorker)
        options_.refuse(QStringLiteral("CARD.json is missing"));
    options.format = format();
    options.allowed = allowed();
    options.isStrict = parser_.isSet(kStrictOption);
    options.look = !parser_.isSet(kNoLookOption);
    options.card = options_.cardOptions();
    // What a host without a wording would show has no size.
    QMap<QString, QString>& wordings = options.card.wordings;
    if (!wordings.contains(kPhoneWording))
        wordings.insert(kPhoneWording, QStringLiteral("See your phone"));
    options.languages = parser_.values(QStringLiteral("lang"));
    options.heights = heights();
    return options;
}

CheckFormat CheckParser::format() const
{
    if (!parser_.isSet(kFormatOption))
        return CheckFormat::Text;
    const QString name = parser_.value(kFormatOption);
    const auto* const found =
        std::find_if(kFormats.begin(), kFormats.end(),
                     [&name](const auto& row) { return name == QLatin1String(row.name); });
    if (found == kFormats.end())
        options_.refuseValue(kFormatOption, name, QStringLiteral("text, json or sarif"));
    return found->format;
}

std::set<Rule> CheckParser::allowed() const
{
    std::set<Rule> allowed;
    for (const QString& code : parser_.values(kAllowOption)) {
        const RuleDescription* const rule = findRule(code);
        if (!rule)
            options_.refuseValue(kAllowOption, code,
                                 QStringLiteral("a code of a finding, such as no-effect"));
        allowed.insert(rule->rule);
    }
    return allowed;
}

QVector<int> CheckParser::heights() const
{
    const QString option = QStringLiteral("height");
    QVector<int> heights;
    for (const QString& value : parser_.values(option))
        heights.append(options_.integer(option, value, 0, kMaximumCardHeight));
    return heights;
}

} // namespace

Request parseCheckCommandLine(const QStringList& arguments)
{
    return CheckParser().parse(arguments);
}

} // namespace plix::tool
