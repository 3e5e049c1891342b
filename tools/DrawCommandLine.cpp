#include "DrawCommandLine.h"

#include "CardArguments.h"
#include "CommandParser.h"

#include <array>

namespace plix::tool {
namespace {

const QLatin1String kScaleOption("scale");

struct DrawCommand {
    Command command;
    QLatin1String name;
    QLatin1String input;
    QLatin1String inputText;
    QLatin1String output;
    QLatin1String outputText;
    bool outputRequired;
    bool paints;
    QLatin1String summary;
    QLatin1String text;
    QLatin1String examples;
};

const std::array kCommands {
    DrawCommand {
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
    DrawCommand {
        Command::Layout, QLatin1String("layout"), QLatin1String("CARD.json"),
        QLatin1String("The card message; it may contain // and /* */ comments."),
        QLatin1String("OUT.json"), QLatin1String("The file to write instead of standard output."),
        false, false, QLatin1String("writes one card's laid-out items as JSON"),
        QLatin1String(
            "Writes the laid-out items of a card as JSON, one line per item, with its\n"
            "rectangle in its parent. Texts have their font size and number of lines, too."),
        QLatin1String("  plix layout receipt.json\n"
                      "  plix layout receipt.json -o receipt.layout.json --lang ja\n")},
    DrawCommand {
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

void addDrawArguments(const DrawCommand& command, CommandParser& parser)
{
    parser.addInput(command.input, command.inputText);
    parser.addOutput(command.output, command.outputText);
    if (command.paints)
        parser.addOption({kScaleOption},
                         QStringLiteral("Device pixels per logical pixel, 0.25 to 8 (default: 2)."),
                         QStringLiteral("F"));
    addCardOptions(parser);
}

Options readDrawArguments(const DrawCommand& command, const CommandParser& parser)
{
    Options options;
    options.command = command.command;
    options.input = parser.requiredInput();
    options.output = command.outputRequired ? parser.requiredOutput() : parser.output();
    if (command.paints && parser.isSet(kScaleOption))
        options.scale = parser.number(kScaleOption, 0.25, 8);
    options.card = readCardOptions(parser);
    if (command.paints && !options.card.dpi)
        options.card.dpi = static_cast<float>(options.scale);
    return options;
}

} // namespace

std::vector<ToolCommand> drawCommands()
{
    std::vector<ToolCommand> commands;
    commands.reserve(kCommands.size());
    for (const DrawCommand& command : kCommands) {
        commands.push_back(
            {command.name, command.summary, command.text, command.examples, kDrawExitCodes,
             [&command](CommandParser& parser) { addDrawArguments(command, parser); },
             [&command](const CommandParser& parser) {
                 return readDrawArguments(command, parser);
             }});
    }
    return commands;
}

} // namespace plix::tool
