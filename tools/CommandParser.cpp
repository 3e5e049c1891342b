#include "CommandParser.h"

#include "ToolCommand.h"
#include "ToolError.h"

namespace plix::tool {
namespace {

const QString kHelpOption = QStringLiteral("help");
const QString kOutputOption = QStringLiteral("output");

} // namespace

void refuseUse(const QString& reason, const QString& command)
{
    const QString help = command.isEmpty() ? QStringLiteral("plix --help")
                                           : QStringLiteral("plix %1 --help").arg(command);
    throw ToolError {ExitCode::WrongUse,
                     QStringLiteral("plix: error: %1\nTry '%2'.").arg(reason, help)};
}

CommandParser::CommandParser(const ToolCommand& command)
    : command_(command)
{
    parser_.setApplicationDescription(QLatin1Char('\n') + QString(command.text));
    parser_.addPositionalArgument(command.name, command.summary);
    addOption({QStringLiteral("h"), kHelpOption}, QStringLiteral("Shows this help."));
}

void CommandParser::addInput(const QString& name, const QString& text, const QString& usage)
{
    inputName_ = name;
    parser_.addPositionalArgument(name, text, usage);
}

void CommandParser::addOption(const QStringList& names, const QString& text, const QString& value)
{
    parser_.addOption(QCommandLineOption(names, text, value));
}

void CommandParser::addHiddenOption(const QString& name)
{
    QCommandLineOption option(name);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser_.addOption(option);
}

void CommandParser::addOutput(const QString& value, const QString& text)
{
    outputName_ = value;
    addOption({QStringLiteral("o"), kOutputOption}, text, value);
}

void CommandParser::parse(const QStringList& arguments)
{
    arguments_ = arguments.mid(2);
    if (!parser_.parse(arguments))
        refuse(parser_.errorText());
}

bool CommandParser::asksForHelp() const
{
    return parser_.isSet(kHelpOption);
}

QString CommandParser::help() const
{
    return parser_.helpText() + QStringLiteral("\nExamples:\n") + QString(command_.examples)
        + QString(command_.exitCodes);
}

double CommandParser::number(const QString& option, double minimum, double maximum) const
{
    bool isNumber = false;
    const double number = value(option).toDouble(&isNumber);
    // Written so that "nan", which is a number for Qt, is refused.
    if (!isNumber || !(number >= minimum && number <= maximum))
        refuseValue(option, value(option),
                    QStringLiteral("a number from %1 to %2").arg(minimum).arg(maximum));
    return number;
}

int CommandParser::integer(const QString& option, int minimum, int maximum) const
{
    return integer(option, value(option), minimum, maximum);
}

int CommandParser::integer(const QString& option, const QString& value, int minimum,
                           int maximum) const
{
    bool isInteger = false;
    const int integer = value.toInt(&isInteger);
    if (!isInteger || integer < minimum || integer > maximum)
        refuseValue(option, value,
                    QStringLiteral("a whole number from %1 to %2").arg(minimum).arg(maximum));
    return integer;
}

QStringList CommandParser::inputs() const
{
    // The first one is the command.
    return parser_.positionalArguments().mid(1);
}

void CommandParser::refuseInput() const
{
    if (!inputs().isEmpty())
        refuse(QStringLiteral("\"%1\" is not expected").arg(inputs().front()));
}

QString CommandParser::input() const
{
    const QStringList inputs = this->inputs();
    if (inputs.size() > 1)
        refuse(QStringLiteral("only one %1 is allowed, but \"%2\" follows")
                   .arg(inputName_, inputs.at(1)));
    return inputs.value(0);
}

QString CommandParser::requiredInput() const
{
    requiredInputs();
    return input();
}

QStringList CommandParser::requiredInputs() const
{
    QStringList inputs = this->inputs();
    if (inputs.isEmpty())
        refuse(QStringLiteral("%1 is missing").arg(inputName_));
    return inputs;
}

QString CommandParser::output() const
{
    return isSet(kOutputOption) ? requiredOutput() : QString();
}

QString CommandParser::requiredOutput() const
{
    QString output = value(kOutputOption);
    if (output.isEmpty())
        refuse(QStringLiteral("-o %1 is missing").arg(outputName_));
    return output;
}

void CommandParser::refuseValue(const QString& option, const QString& value,
                                const QString& expected) const
{
    refuse(QStringLiteral("--%1 must be %2, but is \"%3\"").arg(option, expected, value));
}

void CommandParser::refuse(const QString& reason) const
{
    refuseUse(reason, command_.name);
}

} // namespace plix::tool
