#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace plix::tool {

struct ToolCommand;

// Throws a ToolError that explains how a command is used.
[[noreturn]] void refuseUse(const QString& reason, const QString& command = QString());

// Reads the arguments of a command. Throws ToolError if they are wrong.
class CommandParser {
public:
    // The command must outlive this.
    explicit CommandParser(const ToolCommand& command);

    // A file or folder. `usage` is its name with what else the help says about it.
    void addInput(const QString& name, const QString& text, const QString& usage = QString());
    void addOption(const QStringList& names, const QString& text, const QString& value = QString());
    void addHiddenOption(const QString& name);
    // The option for the file or folder to write.
    void addOutput(const QString& value, const QString& text);

    // `arguments` starts with the names of the program and the command.
    void parse(const QStringList& arguments);

    bool asksForHelp() const;
    QString help() const;

    bool isSet(const QString& option) const { return parser_.isSet(option); }
    QString value(const QString& option) const { return parser_.value(option); }
    QStringList values(const QString& option) const { return parser_.values(option); }
    double number(const QString& option, double minimum, double maximum) const;
    int integer(const QString& option, int minimum, int maximum) const;
    // The value of an option that may be given several times.
    int integer(const QString& option, const QString& value, int minimum, int maximum) const;

    // Files or folders: none, one or none (empty), exactly one, and one or more.
    void refuseInput() const;
    QString input() const;
    QString requiredInput() const;
    QStringList requiredInputs() const;
    // Empty if the option is not given.
    QString output() const;
    QString requiredOutput() const;
    // All arguments of the command, as they were given.
    QStringList arguments() const { return arguments_; }

    [[noreturn]] void refuseValue(const QString& option, const QString& value,
                                  const QString& expected) const;
    [[noreturn]] void refuse(const QString& reason) const;

private:
    QStringList inputs() const;

    const ToolCommand& command_;
    QCommandLineParser parser_;
    QString inputName_;
    QString outputName_;
    QStringList arguments_;
};

} // namespace plix::tool
