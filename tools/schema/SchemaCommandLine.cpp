#include "schema/SchemaCommandLine.h"

#include "CommandParser.h"

namespace plix::tool {
namespace {

const QLatin1String
    kSchemaText("Writes the card format as a JSON Schema (2020-12). Editors that know it complete\n"
                "keys and words, and underline what is wrong. docs/cards.md tells how.");

const QLatin1String kSchemaExitCodes("\nExit codes:\n"
                                     "  0  done\n"
                                     "  2  wrong usage, or a file that cannot be written");

void addSchemaArguments(CommandParser& parser)
{
    parser.addOutput(QStringLiteral("OUT.json"),
                     QStringLiteral("The file to write instead of standard output."));
}

SchemaOptions readSchemaArguments(const CommandParser& parser)
{
    parser.refuseInput();
    return {parser.output()};
}

} // namespace

ToolCommand schemaCommand()
{
    return {QLatin1String("schema"),
            QLatin1String("writes the card format as a JSON Schema"),
            kSchemaText,
            QLatin1String("  plix schema -o card.schema.json\n"),
            kSchemaExitCodes,
            &addSchemaArguments,
            &readSchemaArguments};
}

} // namespace plix::tool
