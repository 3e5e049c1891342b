#include "CardOptionParser.h"

#include "ToolError.h"

#include <QColor>
#include <QFileInfo>

#include <limits>

namespace plix::tool {

void refuseUse(const QString& reason, const QString& command)
{
    const QString help = command.isEmpty() ? QStringLiteral("plix --help")
                                           : QStringLiteral("plix %1 --help").arg(command);
    throw ToolError {ExitCode::WrongUse,
                     QStringLiteral("plix: error: %1\nTry '%2'.").arg(reason, help)};
}

CardOptionParser::CardOptionParser(const QString& command)
    : command_(command)
{
}

void CardOptionParser::addOption(const QStringList& names, const QString& text,
                                 const QString& value)
{
    parser_.addOption(QCommandLineOption(names, text, value));
}

void CardOptionParser::addCardOptions()
{
    addOption({QStringLiteral("dpi")},
              QStringLiteral("Device pixels per logical pixel that images are\n"
                             "scaled for, 0.01 to 16 (default: that of --scale,\n"
                             "or 1 for a layout)."),
              QStringLiteral("F"));
    addOption({QStringLiteral("images")},
              QStringLiteral("The folder of the images. Each image is the file\n"
                             "with the name at the end of its URL (default: none)."),
              QStringLiteral("DIR"));
    addOption({QStringLiteral("lang")},
              QStringLiteral("The language of the texts, such as ko or zh-CN (default: en)."),
              QStringLiteral("CODE"));
    addOption({QStringLiteral("from")},
              QStringLiteral("Who sent the message: 1 is the user (default: 0)."),
              QStringLiteral("N"));
    addOption({QStringLiteral("height")},
              QStringLiteral("Makes the card at least N pixels high, 0 to 100000."),
              QStringLiteral("N"));
    addOption({QStringLiteral("highlight")},
              QStringLiteral("Highlights a word; may be given several times."),
              QStringLiteral("WORD"));
    addOption({QStringLiteral("background")},
              QStringLiteral("The card's background: #RRGGBB, #AARRGGBB or an SVG colour name."),
              QStringLiteral("COLOUR"));
    addOption({QStringLiteral("markup")},
              QStringLiteral("Shows mention and emoji markup in texts."));
    addOption({QStringLiteral("no-mobile-check")},
              QStringLiteral("Lets items work whose action opens only mobile apps."));
    addOption({QStringLiteral("wrap-mode")},
              QStringLiteral("How texts wrap, a QTextOption::WrapMode from 0 to 4 (default: 4)."),
              QStringLiteral("N"));
    addOption({QStringLiteral("text")},
              QStringLiteral("The host's wording for a key, such as\n"
                             "chat_room_check_on_mobile=\"See your phone\";\n"
                             "may be given several times."),
              QStringLiteral("KEY=VALUE"));
}

CardOptions CardOptionParser::cardOptions() const
{
    const auto isSet = [this](const char* name) { return parser_.isSet(QLatin1String(name)); };
    const auto value = [this](const char* name) { return parser_.value(QLatin1String(name)); };
    const auto whole = [&](const char* name, int minimum, int maximum) {
        return integer(QLatin1String(name), value(name), minimum, maximum);
    };

    CardOptions card;
    if (isSet("dpi"))
        card.dpi = static_cast<float>(number(QStringLiteral("dpi"), 0.01, 16));
    card.images = images();
    card.language = value("lang");
    if (isSet("from"))
        card.from = whole("from", std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (isSet("height"))
        card.height = whole("height", 0, kMaximumCardHeight);
    card.highlight = parser_.values(QStringLiteral("highlight"));
    card.background = background();
    card.markup = isSet("markup");
    card.mobileOnlyCheck = !isSet("no-mobile-check");
    if (isSet("wrap-mode"))
        card.wrapMode = whole("wrap-mode", 0, 4);
    card.wordings = wordings();
    return card;
}

QString CardOptionParser::images() const
{
    const QString option = QStringLiteral("images");
    QString folder = parser_.value(option);
    if (parser_.isSet(option) && !QFileInfo(folder).isDir())
        refuseValue(option, folder, QStringLiteral("an existing folder"));
    return folder;
}

QString CardOptionParser::background() const
{
    const QString option = QStringLiteral("background");
    QString color = parser_.value(option);
    if (parser_.isSet(option) && !QColor::isValidColor(color))
        refuseValue(option, color,
                    QStringLiteral("a colour (#RRGGBB, #AARRGGBB or an SVG colour name)"));
    return color;
}

QMap<QString, QString> CardOptionParser::wordings() const
{
    QMap<QString, QString> wordings;
    for (const QString& pair : parser_.values(QStringLiteral("text"))) {
        const int equals = pair.indexOf(QLatin1Char('='));
        if (equals < 1)
            refuse(QStringLiteral("--text must be KEY=VALUE, but is \"%1\"").arg(pair));
        wordings.insert(pair.left(equals), pair.mid(equals + 1));
    }
    return wordings;
}

double CardOptionParser::number(const QString& option, double minimum, double maximum) const
{
    bool isNumber = false;
    const QString value = parser_.value(option);
    const double number = value.toDouble(&isNumber);
    // Written so that "nan", which is a number for Qt, is refused.
    if (!isNumber || !(number >= minimum && number <= maximum))
        refuseValue(option, value,
                    QStringLiteral("a number from %1 to %2").arg(minimum).arg(maximum));
    return number;
}

int CardOptionParser::integer(const QString& option, const QString& value, int minimum,
                              int maximum) const
{
    bool isInteger = false;
    const int integer = value.toInt(&isInteger);
    if (!isInteger || integer < minimum || integer > maximum)
        refuseValue(option, value,
                    QStringLiteral("a whole number from %1 to %2").arg(minimum).arg(maximum));
    return integer;
}

void CardOptionParser::refuseValue(const QString& option, const QString& value,
                                   const QString& expected) const
{
    refuse(QStringLiteral("--%1 must be %2, but is \"%3\"").arg(option, expected, value));
}

void CardOptionParser::refuse(const QString& reason) const
{
    refuseUse(reason, command_);
}

} // namespace plix::tool
