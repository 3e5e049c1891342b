#include "schema/SchemaCommandLine.h"

#include "CardOptionParser.h"

#include <QCommandLineParser>

namespace plix::tool {
namespace {

const QString kOutputOption = QStringLiteral("output");

const QString kSchemaDescription = QStringLiteral(
    "\nWrites the card format as a JSON Schema (2020-12). Editors that know it complete\n"
    "keys and words, and underline what is wrong. docs/cards.md tells how.");

const QString kExitCodes = QStringLiteral("\nExit codes:\n"
                                          "  0  done\n"
                                          "  2  wrong usage, or a file that cannot be written");

} // namespace

Request parseSchemaCommandLine(const QStringList& arguments)
{
    CardOptionParser options(kSchemaCommand);
    QCommandLineParser& parser = options.parser();
    parser.setApplicationDescription(kSchemaDescription);
    parser.addPositionalArgument(kSchemaCommand, kSchemaSummary);
    options.addOption({QStringLiteral("h"), QStringLiteral("help")},
                      QStringLiteral("Shows this help."));
    options.addOption({QStringLiteral("o"), kOutputOption},
                      QStringLiteral("The file to write instead of standard output."),
                      QStringLiteral("OUT.json"));
    if (!parser.parse(arguments))
        options.refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        return Information {parser.helpText() + QStringLiteral("\nExamples:\n") + kSchemaExamples
                            + kExitCodes};
    const QStringList more = parser.positionalArguments().mid(1);
    if (!more.isEmpty())
        options.refuse(QStringLiteral("\"%1\" is not expected").arg(more.front()));
    if (parser.isSet(kOutputOption) && parser.value(kOutputOption).isEmpty())
        options.refuse(QStringLiteral("-o OUT.json is missing"));
    return SchemaOptions {parser.value(kOutputOption)};
}

} // namespace plix::tool
