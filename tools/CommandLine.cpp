#include "CommandLine.h"

#include "ToolError.h"

#include <QColor>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <array>
#include <limits>

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
    QString text = QStringLiteral("Usage: plix COMMAND ...\n\n"
                                  "Draws card messages and shows how they are laid out.\n\n"
                                  "Commands:\n");
    for (const CommandDescription& command : kCommands) {
        text += QStringLiteral("  %1 %2\n")
                    .arg(QString(command.name).leftJustified(9), QString(command.summary));
    }
    text += QStringLiteral("\nOptions:\n"
                           "  -h, --help     Shows this help, or the help for a command.\n"
                           "  -v, --version  Shows the version.\n"
                           "\nExamples:\n");
    for (const CommandDescription& command : kCommands)
        text += command.examples;
    return text + kExitCodes;
}

[[noreturn]] void refuse(const QString& reason, const QString& command = QString())
{
    const QString help = command.isEmpty() ? QStringLiteral("plix --help")
                                           : QStringLiteral("plix %1 --help").arg(command);
    throw ToolError {ExitCode::WrongUse,
                     QStringLiteral("plix: error: %1\nTry '%2'.").arg(reason, help)};
}

class CommandParser {
public:
    explicit CommandParser(const CommandDescription& description);

    std::variant<Options, Information> parse(const QStringList& arguments);

private:
    void addOptions();
    QString help() const;
    QString input() const;
    QString output() const;
    CardOptions cardOptions() const;
    QString images() const;
    QString background() const;
    QMap<QString, QString> wordings() const;

    double number(const QString& option, double minimum, double maximum) const;
    int integer(const QString& option, int minimum, int maximum) const;
    [[noreturn]] void refuseValue(const QString& option, const QString& expected) const;

    const CommandDescription& description_;
    QCommandLineParser parser_;
};

CommandParser::CommandParser(const CommandDescription& description)
    : description_(description)
{
    parser_.setApplicationDescription(QLatin1Char('\n') + QString(description.text));
    parser_.addPositionalArgument(description.name, description.summary);
    parser_.addPositionalArgument(description.input, description.inputText);
    addOptions();
}

void CommandParser::addOptions()
{
    const auto option = [this](const QStringList& names, const QString& text,
                               const QString& value = QString()) {
        parser_.addOption(QCommandLineOption(names, text, value));
    };
    option({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help."));
    option({QStringLiteral("o"), kOutputOption}, description_.outputText, description_.outputValue);
    if (description_.paints) {
        option({kScaleOption},
               QStringLiteral("Device pixels per logical pixel, 0.25 to 8 (default: 2)."),
               QStringLiteral("F"));
    }
    option({QStringLiteral("dpi")},
           QStringLiteral("Device pixels per logical pixel that images are\n"
                          "scaled for, 0.01 to 16 (default: that of --scale,\n"
                          "or 1 for a layout)."),
           QStringLiteral("F"));
    option({QStringLiteral("images")},
           QStringLiteral("The folder of the images. Each image is the file\n"
                          "with the name at the end of its URL (default: none)."),
           QStringLiteral("DIR"));
    option({QStringLiteral("lang")},
           QStringLiteral("The language of the texts, such as ko or zh-CN (default: en)."),
           QStringLiteral("CODE"));
    option({QStringLiteral("from")},
           QStringLiteral("Who sent the message: 1 is the user (default: 0)."),
           QStringLiteral("N"));
    option({QStringLiteral("height")},
           QStringLiteral("Makes the card at least N pixels high, 0 to 100000."),
           QStringLiteral("N"));
    option({QStringLiteral("highlight")},
           QStringLiteral("Highlights a word; may be given several times."),
           QStringLiteral("WORD"));
    option({QStringLiteral("background")},
           QStringLiteral("The card's background: #RRGGBB, #AARRGGBB or an SVG colour name."),
           QStringLiteral("COLOUR"));
    option({QStringLiteral("markup")}, QStringLiteral("Shows mention and emoji markup in texts."));
    option({QStringLiteral("no-mobile-check")},
           QStringLiteral("Lets items work whose action opens only mobile apps."));
    option({QStringLiteral("wrap-mode")},
           QStringLiteral("How texts wrap, a QTextOption::WrapMode from 0 to 4 (default: 4)."),
           QStringLiteral("N"));
    option({QStringLiteral("text")},
           QStringLiteral("The host's wording for a key, such as\n"
                          "chat_room_check_on_mobile=\"See your phone\";\n"
                          "may be given several times."),
           QStringLiteral("KEY=VALUE"));
}

std::variant<Options, Information> CommandParser::parse(const QStringList& arguments)
{
    if (!parser_.parse(arguments))
        refuse(parser_.errorText(), description_.name);
    if (parser_.isSet(QStringLiteral("help")))
        return Information {help()};

    Options options;
    options.command = description_.command;
    options.input = input();
    options.output = output();
    if (description_.paints && parser_.isSet(kScaleOption))
        options.scale = number(kScaleOption, 0.25, 8);
    options.card = cardOptions();
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
        refuse(QStringLiteral("%1 is missing").arg(description_.input), description_.name);
    if (positional.size() > 1) {
        refuse(QStringLiteral("only one %1 is allowed, but \"%2\" follows")
                   .arg(description_.input, positional.at(1)),
               description_.name);
    }
    return positional.front();
}

QString CommandParser::output() const
{
    QString output = parser_.value(kOutputOption);
    const bool isMissing = description_.outputRequired
        ? output.isEmpty()
        : parser_.isSet(kOutputOption) && output.isEmpty();
    if (isMissing) {
        refuse(QStringLiteral("-o %1 is missing").arg(description_.outputValue), description_.name);
    }
    return output;
}

CardOptions CommandParser::cardOptions() const
{
    const auto isSet = [this](const char* name) { return parser_.isSet(QLatin1String(name)); };
    const auto value = [this](const char* name) { return parser_.value(QLatin1String(name)); };

    CardOptions card;
    if (isSet("dpi"))
        card.dpi = static_cast<float>(number(QStringLiteral("dpi"), 0.01, 16));
    card.images = images();
    card.language = value("lang");
    if (isSet("from")) {
        card.from = integer(QStringLiteral("from"), std::numeric_limits<int>::min(),
                            std::numeric_limits<int>::max());
    }
    if (isSet("height"))
        card.height = integer(QStringLiteral("height"), 0, 100000);
    card.highlight = parser_.values(QStringLiteral("highlight"));
    card.background = background();
    card.markup = isSet("markup");
    card.mobileOnlyCheck = !isSet("no-mobile-check");
    if (isSet("wrap-mode"))
        card.wrapMode = integer(QStringLiteral("wrap-mode"), 0, 4);
    card.wordings = wordings();
    return card;
}

QString CommandParser::images() const
{
    const QString option = QStringLiteral("images");
    if (parser_.isSet(option) && !QFileInfo(parser_.value(option)).isDir())
        refuseValue(option, QStringLiteral("an existing folder"));
    return parser_.value(option);
}

QString CommandParser::background() const
{
    const QString option = QStringLiteral("background");
    if (parser_.isSet(option) && !QColor::isValidColor(parser_.value(option)))
        refuseValue(option, QStringLiteral("a colour (#RRGGBB, #AARRGGBB or an SVG colour name)"));
    return parser_.value(option);
}

QMap<QString, QString> CommandParser::wordings() const
{
    QMap<QString, QString> wordings;
    for (const QString& pair : parser_.values(QStringLiteral("text"))) {
        const int equals = pair.indexOf(QLatin1Char('='));
        if (equals < 1) {
            refuse(QStringLiteral("--text must be KEY=VALUE, but is \"%1\"").arg(pair),
                   description_.name);
        }
        wordings.insert(pair.left(equals), pair.mid(equals + 1));
    }
    return wordings;
}

double CommandParser::number(const QString& option, double minimum, double maximum) const
{
    bool isNumber = false;
    const double number = parser_.value(option).toDouble(&isNumber);
    // Written so that "nan", which is a number for Qt, is refused.
    if (!isNumber || !(number >= minimum && number <= maximum))
        refuseValue(option, QStringLiteral("a number from %1 to %2").arg(minimum).arg(maximum));
    return number;
}

int CommandParser::integer(const QString& option, int minimum, int maximum) const
{
    bool isInteger = false;
    const int integer = parser_.value(option).toInt(&isInteger);
    if (!isInteger || integer < minimum || integer > maximum)
        refuseValue(option,
                    QStringLiteral("a whole number from %1 to %2").arg(minimum).arg(maximum));
    return integer;
}

void CommandParser::refuseValue(const QString& option, const QString& expected) const
{
    refuse(QStringLiteral("--%1 must be %2, but is \"%3\"")
               .arg(option, expected, parser_.value(option)),
           description_.name);
}

} // namespace

std::variant<Options, Information> parseCommandLine(const QStringList& arguments)
{
    const QString first = arguments.value(1);
    if (first.isEmpty())
        refuse(QStringLiteral("a command is missing: render, layout or gallery"));
    if (first == QLatin1String("--help") || first == QLatin1String("-h"))
        return Information {generalHelp()};
    if (first == QLatin1String("--version") || first == QLatin1String("-v"))
        return Information {QStringLiteral("plix %1").arg(QCoreApplication::applicationVersion())};

    const auto description =
        std::find_if(kCommands.begin(), kCommands.end(),
                     [&](const CommandDescription& command) { return command.name == first; });
    if (description == kCommands.end())
        refuse(QStringLiteral("unknown command \"%1\"").arg(first));
    return CommandParser(*description).parse(arguments);
}

} // namespace plix::tool
