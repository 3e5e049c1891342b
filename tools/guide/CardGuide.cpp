#include "guide/CardGuide.h"

#include "CardFile.h"
#include "DrawCard.h"
#include "ToolError.h"
#include "guide/KeyTable.h"

#include <QRegularExpression>

namespace plix::tool {
namespace {

const QString kTemplate = QStringLiteral("%1/cards/cards.in.md");

// The tables that have a name of their own. The others are those of the components.
struct NamedTable {
    QLatin1String name;
    const PlixFormatComponent& format;
};

const PlixFormatComponent* findTable(const QString& name)
{
    const NamedTable tables[] = {
        {QLatin1String("bubble"), BubbleFormat()},
        {QLatin1String("span"), PartFormat(PlixFormatPart::Span)},
        {QLatin1String("action"), PartFormat(PlixFormatPart::Action)},
        {QLatin1String("styles"), PartFormat(PlixFormatPart::Styles)},
        {QLatin1String("zone style"), PartFormat(PlixFormatPart::ZoneStyle)},
    };
    for (const NamedTable& table : tables) {
        if (table.name == name)
            return &table.format;
    }
    return FindComponentFormat(name.toStdString());
}

} // namespace

CardGuide::CardGuide(const QString& documents, const QString& images)
    : documents_(documents)
    , images_(images)
{
    expand(QString::fromUtf8(readCardText(kTemplate.arg(documents))));
}

QString CardGuide::textPath() const
{
    return documents_ + QStringLiteral("/cards.md");
}

QString CardGuide::cardPath(const QString& card) const
{
    return QStringLiteral("%1/cards/%2.json").arg(documents_, card);
}

QString CardGuide::picturePath(const QString& card) const
{
    return QStringLiteral("%1/cards/%2.png").arg(documents_, card);
}

QImage CardGuide::picture(const QString& card) const
{
    return pictures_.at(card);
}

void CardGuide::expand(const QString& source)
{
    for (const QString& line : source.split(QLatin1Char('\n')))
        text_ += expandLine(line) + QLatin1Char('\n');
    text_.chop(1);
}

QString CardGuide::expandLine(const QString& line)
{
    static const QRegularExpression placeholder(QStringLiteral("^\\{\\{(keys|card) (.*)\\}\\}$"));
    const auto match = placeholder.match(line);
    if (!match.hasMatch())
        return line;
    const QString name = match.captured(2);
    if (match.captured(1) == QLatin1String("card"))
        return expandCard(name);
    const PlixFormatComponent* const table = findTable(name);
    if (!table)
        throw fileError(kTemplate.arg(documents_), QStringLiteral("No such table: %1").arg(name));
    return keyTable(*table).trimmed();
}

QString CardGuide::expandCard(const QString& card)
{
    Options options;
    options.scale = kPictureScale;
    options.card.dpi = static_cast<float>(kPictureScale);
    options.card.images = images_;
    const QImage picture = drawCard(cardPath(card), options);
    pictures_[card] = picture;
    cards_.append(card);
    const int width = static_cast<int>(picture.width() / kPictureScale);
    return QStringLiteral("<img src=\"cards/%1.png\" width=\"%2\" alt=\"%1\">\n\n"
                          "```json\n%3\n```")
        .arg(card)
        .arg(width)
        .arg(QString::fromUtf8(readCardText(cardPath(card))).trimmed());
}

} // namespace plix::tool
