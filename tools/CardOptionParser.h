#pragma once

#include "Options.h"

#include <QCommandLineParser>
#include <QMap>
#include <QString>
#include <QStringList>

namespace plix::tool {

// Throws a ToolError that explains how a command is used.
[[noreturn]] void refuseUse(const QString& reason, const QString& command = QString());

// The options of a command that shows cards.
class CardOptionParser {
public:
    explicit CardOptionParser(const QString& command);

    QCommandLineParser& parser() { return parser_; }
    const QCommandLineParser& parser() const { return parser_; }

    void addOption(const QStringList& names, const QString& text, const QString& value = QString());
    void addCardOptions();

    // Throws ToolError for values that cannot be read.
    CardOptions cardOptions() const;
    double number(const QString& option, double minimum, double maximum) const;
    int integer(const QString& option, const QString& value, int minimum, int maximum) const;
    [[noreturn]] void refuseValue(const QString& option, const QString& value,
                                  const QString& expected) const;
    [[noreturn]] void refuse(const QString& reason) const;

private:
    QString images() const;
    QString background() const;
    QMap<QString, QString> wordings() const;

    QString command_;
    QCommandLineParser parser_;
};

} // namespace plix::tool
