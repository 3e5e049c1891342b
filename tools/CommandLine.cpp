#include "CommandLine.h"

#include "CardOptionParser.h"
#include "ToolError.h"
#include "check/CheckCommandLine.h"
#include "schema/SchemaCommandLine.h"
#include "view/ViewCommandLine.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace plix::tool {
namespace {

const QString kScaleOption = QStringLiteral("scale");
const QString kOutputOption = QStringLiteral("output");

struct CommandDescription {
    Command command;
    QLatin1String name;
    QLatin1String input;
    QLatin1String inputText;
    QLatin1String outputValue;
    QLatin1String outputText;
    bool outputRequired;
    bool paints;
    QLatin1String summary;
    QLatin1String text;
    QLatin1String examples;
};

const std::array kCommands {
    CommandDescription {
        Command::Render, QLatin1String("render"), QLatin1String("CARD.json"),
        QLatin1String("The card message; it may contain // and /* */ comments."),
        QLatin1String("OUT.png"), QLatin1String("The picture to write (required)."), true, true,
        QLatin1String("draws one card into a PNG file"),
        QLatin1String("Draws one card into a PNG file, transparent outside the card.\n"
                      "A picture has at most 32,767 pixels per side and 64,000,000 in all. A card\n"
                      "that is larger is cut at its lower end, with a warning."),
        QLatin1String("  plix render receipt.json -o receipt.png\n"
                      "  plix render receipt.json -o receipt.png --scale 1 --lang ko\n"
                      "  plix render receipt.json -o mine.png --from 1 --highlight total\n")},
    CommandDescription {
        Command::Layout, QLatin1String("layout"), QLatin1String("CARD.json"),
        QLatin1String("The card message; it may contain // and /* */ comments."),
        QLatin1String("OUT.json"), QLatin1String("The file to write instead of standard output."),
        false, false, QLatin1String("writes one card's laid-out items as JSON"),
        QLatin1String(
            "Writes the laid-out items of a card as JSON, one line per item, with its\n"
            "rectangle in its parent. Texts have their font size and number of lines, too."),
        QLatin1String("  plix layout receipt.json\n"
                      "  plix layout receipt.json -o receipt.layout.json --lang ja\n")},
    CommandDescription {
        Command::Gallery, QLatin1String("gallery"), QLatin1String("DIR"),
        QLatin1String("The folder whose *.json files are drawn."), QLatin1String("OUTDIR"),
        QLatin1String("The folder to write (required); created if it does not exist."), true, true,
        QLatin1String("draws all cards of a folder, and a contact sheet"),
        QLatin1String(
            "Draws each *.json file of a folder into OUTDIR/cards/NAME.png, and all cards\n"
            "into one contact sheet, OUTDIR/gallery.png. A card that fails is reported\n"
            "and left out; the exit code is then not 0."),
        QLatin1String("  plix gallery examples/cards -o gallery\n"
                      "  plix gallery examples/cards -o gallery-ko --lang ko --scale 1\n")},
};

const QString kExitCodes =
    QStringLiteral("\nExit codes:\n"
                   "  0  done, with or without warnings\n"
                   "  1  a file is not a card: not a JSON object of the \"type\" \"bubble\"\n"
                   "  2  wrong usage, or a file that cannot be read or written");

QString generalHelp()
{
    QString text =
        QStringLiteral("Usage: plix COMMAND ...\n\n"
                       "Draws card messages, shows how they are laid out, and checks them.\n\n"
                       "Commands:\n");
    for (const CommandDescription& command : kCommands) {
        text += QStringLiteral("  %1 %2\n")
                    .arg(QString(command.name).leftJustified(9), QString(command.summary));
    }
    text += QStringLiteral("  %1 %2\n").arg(QString(kCheckCommand).leftJustified(9), kCheckSummary);
    text +=
        QStringLiteral("  %1 %2\n").arg(QString(kSchemaCommand).leftJustified(9), kSchemaSummary);
    text += QStringLiteral("  %1 %2\n").arg(QString(kViewCommand).leftJustified(9), kViewSummary);
    text += QStringLiteral("\nOptions:\n"
                           "  -h, --help     Shows this help, or the help for a command.\n"
                           "  -v, --version  Shows the version.\n"
                           "\nExamples:\n");
    for (const CommandDescription& command : kCommands)
        text += command.examples;
    return text + kCheckExamples + kSchemaExamples + kViewExamples + kExitCodes;
}

class CommandParser {
public:
    explicit CommandParser(const CommandDescription& description);

    Request parse(const QStringList& arguments);

private:
    void addOptions();
    QString help() const;
    QString input() const;
    QString output() const;

    const CommandDescription& description_;
    CardOptionParser options_;
    QCommandLineParser& parser_;
};

CommandParser::CommandParser(const CommandDescription& description)
    : description_(description)
    , options_(description.name)
    , parser_(options_.parser())
{
    parser_.setApplicationDescription(QLatin1Char('\n') + QString(description.text));
    parser_.addPositionalArgument(description.name, description.summary);
    parser_.addPositionalArgument(description.input, description.inputText);
    addOptions();
}

void CommandParser::addOptions()
{
    options_.addOption({QStringLiteral("h"), QStringLiteral("help")},
                       QStringLiteral("Shows this help."));
    options_.addOption({QStringLiteral("o"), kOutputOption}, description_.outputText,
                       description_.outputValue);
    if (description_.paints) {
        options_.addOption(
            {kScaleOption},
            QStringLiteral("Device pixels per logical pixel, 0.25 to 8 (default: 2)."),
            QStringLiteral("F"));
    }
    options_.addCardOptions();
}

Request CommandParser::parse(const QStringList& arguments)
{
    if (!parser_.parse(arguments))
        options_.refuse(parser_.errorText());
    if (parser_.isSet(QStringLiteral("help")))
        return Information {help()};

    Options options;
    options.command = description_.command;
    options.input = input();
    options.output = output();
    if (description_.paints && parser_.isSet(kScaleOption))
        options.scale = options_.number(kScaleOption, 0.25, 8);
    options.card = options_.cardOptions();
    if (description_.paints && !options.card.dpi)
        options.card.dpi = static_cast<float>(options.scale);
    return options;
}

QString CommandParser::help() const
{
    return parser_.helpText() + QStringLiteral("\nExamples:\n") + QString(description_.examples)
        + kExitCodes;
}

QString CommandParser::input() const
{
    const QStringList positional = parser_.positionalArguments().mid(1);
    if (positional.isEmpty())
        options_.refuse(QStringLiteral("%1 is missing").arg(description_.input));
    if (positional.size() > 1) {
        options_.refuse(QStringLiteral("only one %1 is allowed, but \"%2\" follows")
                            .arg(description_.input, positional.at(1)));
    }
    return positional.front();
}

QString CommandParser::output() const
{
    QString output = parser_.value(kOutputOption);
    const bool isMissing = description_.outputRequired
        ? output.isEmpty()
        : parser_.isSet(kOutputOption) && output.isEmpty();
    if (isMissing)
        options_.refuse(QStringLiteral("-o %1 is missing").arg(description_.outputValue));
    return output;
}

} // namespace

Request parseCommandLine(const QStringList& arguments)
{
    const QString first = arguments.value(1);
    if (first.isEmpty())
        refuseUse(
            QStringLiteral("a command is missing: render, layout, gallery, check, schema or view"));
    if (first == QLatin1String("--help") || first == QLatin1String("-h"))
        return Information {generalHelp()};
    if (first == QLatin1String("--version") || first == QLatin1String("-v"))
        return Information {QStringLiteral("plix %1").arg(QCoreApplication::applicationVersion())};

    if (first == kCheckCommand)
        return parseCheckCommandLine(arguments);
    if (first == kSchemaCommand)
        return parseSchemaCommandLine(arguments);
    if (first == kViewCommand)
        return parseViewCommandLine(arguments);
    const auto* const description =
        std::find_if(kCommands.begin(), kCommands.end(),
                     [&](const CommandDescription& command) { return command.name == first; });
    if (description == kCommands.end())
        refuseUse(QStringLiteral("unknown command \"%1\"").arg(first));
    return CommandParser(*description).parse(arguments);
}

} // namespace plix::tool
