#include "CommandLine.h"

#include "CommandParser.h"
#include "DrawCommandLine.h"
#include "ToolCommand.h"
#include "check/CheckCommandLine.h"
#include "schema/SchemaCommandLine.h"
#include "view/ViewCommandLine.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace plix::tool {
namespace {

std::vector<ToolCommand> allCommands()
{
    std::vector<ToolCommand> commands = drawCommands();
    commands.push_back(checkCommand());
    commands.push_back(schemaCommand());
    commands.push_back(viewCommand());
    return commands;
}

QString generalHelp(const std::vector<ToolCommand>& commands)
{
    QString list;
    QString examples;
    for (const ToolCommand& command : commands) {
        list += QStringLiteral("  %1 %2\n")
                    .arg(QString(command.name).leftJustified(9), QString(command.summary));
        examples += command.examples;
    }
    return QStringLiteral("Usage: plix COMMAND ...\n\n"
                          "Draws card messages, shows how they are laid out, and checks them.\n\n"
                          "Commands:\n")
        + list
        + QStringLiteral("\nOptions:\n"
                         "  -h, --help     Shows this help, or the help for a command.\n"
                         "  -v, --version  Shows the version.\n"
                         "\nExamples:\n")
        + examples + kDrawExitCodes;
}

// "render, layout or view".
QString namesOf(const std::vector<ToolCommand>& commands)
{
    QStringList names;
    for (const ToolCommand& command : commands)
        names.append(command.name);
    const QString last = names.takeLast();
    return QStringLiteral("%1 or %2").arg(names.join(QStringLiteral(", ")), last);
}

Request parse(const ToolCommand& command, const QStringList& arguments)
{
    CommandParser parser(command);
    command.addArguments(parser);
    parser.parse(arguments);
    if (parser.asksForHelp())
        return Information {parser.help()};
    return command.readArguments(parser);
}

} // namespace

Request parseCommandLine(const QStringList& arguments)
{
    const std::vector<ToolCommand> commands = allCommands();
    const QString first = arguments.value(1);
    if (first.isEmpty())
        refuseUse(QStringLiteral("a command is missing: %1").arg(namesOf(commands)));
    if (first == QLatin1String("--help") || first == QLatin1String("-h"))
        return Information {generalHelp(commands)};
    if (first == QLatin1String("--version") || first == QLatin1String("-v"))
        return Information {QStringLiteral("plix %1").arg(QCoreApplication::applicationVersion())};

    const auto command =
        std::find_if(commands.begin(), commands.end(),
                     [&first](const ToolCommand& each) { return each.name == first; });
    if (command == commands.end())
        refuseUse(QStringLiteral("unknown command \"%1\"").arg(first));
    return parse(*command, arguments);
}

} // namespace plix::tool
