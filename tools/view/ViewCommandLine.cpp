#include "view/ViewCommandLine.h"

#include "CardArguments.h"
#include "CommandParser.h"

namespace plix::tool {
namespace {

const QLatin1String
    kViewText("Opens a window that shows a card beside its JSON, live as it is written or as\n"
              "another program changes the file, with its problems, its items, and controls\n"
              "for the settings below. It needs a display. The settings are remembered.");

const QLatin1String kViewExamples("  plix view receipt.json --images images\n"
                                  "  plix view examples/cards --lang ko\n");

void addViewArguments(CommandParser& parser)
{
    parser.addInput(QStringLiteral("CARD"),
                    QStringLiteral("A card, or a folder of cards (default: a new card)."),
                    QStringLiteral("[CARD]"));
    addCardOptions(parser);
}

ViewOptions readViewArguments(const CommandParser& parser)
{
    return {parser.input(), readCardOptions(parser)};
}

} // namespace

ToolCommand viewCommand()
{
    return {kViewCommand,      QLatin1String("opens a window to write cards in"),
            kViewText,         kViewExamples,
            QLatin1String(),   &addViewArguments,
            &readViewArguments};
}

} // namespace plix::tool
