#include "check/CheckCommandLine.h"

#include "CardArguments.h"
#include "CommandParser.h"

#include <algorithm>
#include <array>

namespace plix::tool {
namespace {

const QLatin1String kFormatOption("format");
const QLatin1String kAllowOption("allow");
const QLatin1String kStrictOption("strict");
const QLatin1String kNoLookOption("no-look");

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

const QLatin1String
    kCheckText("Finds what is wrong with cards: errors (a part of the card is lost), warnings\n"
               "(something has no effect, or another one than it seems), and what looks wrong\n"
               "in the card as it is drawn. Each finding has its place, and a code, which\n"
               "docs/check.md explains. Looks are checked once a card has no errors.\n"
               "\n"
               "--lang and --height may be given several times: each card is drawn for each of\n"
               "them.");

const QLatin1String kCheckExamples("  plix check receipt.json\n"
                                   "  plix check cards --strict --allow low-contrast\n"
                                   "  plix check cards --format sarif > cards.sarif\n"
                                   "  plix check receipt.json --lang en --lang ko --height 400\n");

const QLatin1String kCheckExitCodes("\nExit codes:\n"
                                    "  0  no errors; with --strict: no findings at all\n"
                                    "  1  errors; with --strict: any findings\n"
                                    "  2  wrong usage, or a file that cannot be read");

void addCheckArguments(CommandParser& parser)
{
    parser.addInput(QStringLiteral("CARD.json"),
                    QStringLiteral("Cards, folders with *.json files, or - for standard input."),
                    QStringLiteral("CARD.json..."));
    parser.addOption({kFormatOption}, QStringLiteral("text, json or sarif (default: text)."),
                     QStringLiteral("FORMAT"));
    parser.addOption({kAllowOption},
                     QStringLiteral("Leaves findings of a code out, such as no-effect;\n"
                                    "may be given several times."),
                     QStringLiteral("CODE"));
    parser.addOption({kStrictOption}, QStringLiteral("Warnings fail the check, too."));
    parser.addOption({kNoLookOption}, QStringLiteral("Does not draw the cards: faster."));
    addCardOptions(parser);
    parser.addHiddenOption(kWorkerOption);
}

CheckFormat readFormat(const CommandParser& parser)
{
    if (!parser.isSet(kFormatOption))
        return CheckFormat::Text;
    const QString name = parser.value(kFormatOption);
    const auto* const found =
        std::find_if(kFormats.begin(), kFormats.end(),
                     [&name](const auto& row) { return name == QLatin1String(row.name); });
    if (found == kFormats.end())
        parser.refuseValue(kFormatOption, name, QStringLiteral("text, json or sarif"));
    return found->format;
}

std::set<Rule> readAllowed(const CommandParser& parser)
{
    std::set<Rule> allowed;
    for (const QString& code : parser.values(kAllowOption)) {
        const RuleDescription* const rule = findRule(code);
        if (!rule)
            parser.refuseValue(kAllowOption, code,
                               QStringLiteral("a code of a finding, such as no-effect"));
        allowed.insert(rule->rule);
    }
    return allowed;
}

CardOptions readCard(const CommandParser& parser)
{
    CardOptions card = readCardOptions(parser);
    // What a host without a wording would show has no size.
    if (!card.wordings.contains(kPhoneWording))
        card.wordings.insert(kPhoneWording, QStringLiteral("See your phone"));
    return card;
}

CheckOptions readCheckArguments(const CommandParser& parser)
{
    CheckOptions options;
    options.isWorker = parser.isSet(kWorkerOption);
    options.inputs = options.isWorker ? QStringList() : parser.requiredInputs();
    options.format = readFormat(parser);
    options.allowed = readAllowed(parser);
    options.isStrict = parser.isSet(kStrictOption);
    options.look = !parser.isSet(kNoLookOption);
    options.card = readCard(parser);
    options.languages = readLanguages(parser);
    options.heights = readHeights(parser);
    options.arguments = parser.arguments();
    return options;
}

} // namespace

ToolCommand checkCommand()
{
    return {kCheckCommand,      QLatin1String("finds what is wrong with cards"),
            kCheckText,         kCheckExamples,
            kCheckExitCodes,    &addCheckArguments,
            &readCheckArguments};
}

} // namespace plix::tool
