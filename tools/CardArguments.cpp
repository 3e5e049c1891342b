#include "CardArguments.h"

#include "CommandParser.h"

#include <QColor>
#include <QFileInfo>
#include <QLatin1String>

#include <array>
#include <limits>

namespace plix::tool {
namespace {

const QLatin1String kDpi("dpi");
const QLatin1String kImages("images");
const QLatin1String kLanguage("lang");
const QLatin1String kFrom("from");
const QLatin1String kHeight("height");
const QLatin1String kHighlight("highlight");
const QLatin1String kBackground("background");
const QLatin1String kMarkup("markup");
const QLatin1String kNoMobileCheck("no-mobile-check");
const QLatin1String kWrapMode("wrap-mode");
const QLatin1String kText("text");

struct OptionRow {
    QLatin1String name;
    const char* value;
    const char* text;
};

const std::array kOptions = std::to_array<OptionRow>({
    {kDpi, "F",
     "Device pixels per logical pixel that images are\n"
     "scaled for, 0.01 to 16 (default: those of the\n"
     "picture, or 1 if there is none)."},
    {kImages, "DIR",
     "The folder of the images. Each image is the file\n"
     "with the name at the end of its URL (default: none)."},
    {kLanguage, "CODE", "The language of the texts, such as ko or zh-CN (default: en)."},
    {kFrom, "N", "Who sent the message: 1 is the user (default: 0)."},
    {kHeight, "N", "Makes the card at least N pixels high, 0 to 100000."},
    {kHighlight, "WORD", "Highlights a word; may be given several times."},
    {kBackground, "COLOUR", "The card's background: #RRGGBB, #AARRGGBB or an SVG colour name."},
    {kMarkup, "", "Shows mention and emoji markup in texts."},
    {kNoMobileCheck, "", "Lets items work whose action opens only mobile apps."},
    {kWrapMode, "N", "How texts wrap, a QTextOption::WrapMode from 0 to 4 (default: 4)."},
    {kText, "KEY=VALUE",
     "The host's wording for a key, such as\n"
     "chat_room_check_on_mobile=\"See your phone\";\n"
     "may be given several times."},
});

QString readImages(const CommandParser& parser)
{
    QString folder = parser.value(kImages);
    if (parser.isSet(kImages) && !QFileInfo(folder).isDir())
        parser.refuseValue(kImages, folder, QStringLiteral("an existing folder"));
    return folder;
}

QString readBackground(const CommandParser& parser)
{
    QString color = parser.value(kBackground);
    if (parser.isSet(kBackground) && !QColor::isValidColor(color))
        parser.refuseValue(kBackground, color,
                           QStringLiteral("a colour (#RRGGBB, #AARRGGBB or an SVG colour name)"));
    return color;
}

QMap<QString, QString> readWordings(const CommandParser& parser)
{
    QMap<QString, QString> wordings;
    for (const QString& pair : parser.values(kText)) {
        const int equals = pair.indexOf(QLatin1Char('='));
        if (equals < 1)
            parser.refuse(QStringLiteral("--text must be KEY=VALUE, but is \"%1\"").arg(pair));
        wordings.insert(pair.left(equals), pair.mid(equals + 1));
    }
    return wordings;
}

} // namespace

void addCardOptions(CommandParser& parser)
{
    for (const OptionRow& row : kOptions)
        parser.addOption({row.name}, QLatin1String(row.text), QLatin1String(row.value));
}

CardOptions readCardOptions(const CommandParser& parser)
{
    CardOptions card;
    if (parser.isSet(kDpi))
        card.dpi = static_cast<float>(parser.number(kDpi, 0.01, 16));
    card.images = readImages(parser);
    card.language = parser.value(kLanguage);
    if (parser.isSet(kFrom))
        card.from =
            parser.integer(kFrom, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (parser.isSet(kHeight))
        card.height = parser.integer(kHeight, 0, kMaximumCardHeight);
    card.highlight = parser.values(kHighlight);
    card.background = readBackground(parser);
    card.markup = parser.isSet(kMarkup);
    card.mobileOnlyCheck = !parser.isSet(kNoMobileCheck);
    if (parser.isSet(kWrapMode))
        card.wrapMode = parser.integer(kWrapMode, 0, 4);
    card.wordings = readWordings(parser);
    return card;
}

QStringList readLanguages(const CommandParser& parser)
{
    return parser.values(kLanguage);
}

QVector<int> readHeights(const CommandParser& parser)
{
    QVector<int> heights;
    for (const QString& height : parser.values(kHeight))
        heights.append(parser.integer(kHeight, height, 0, kMaximumCardHeight));
    return heights;
}

} // namespace plix::tool
