#include "check/TextMends.h"

#include "check/Excerpt.h"
#include "check/TextContrast.h"
#include "check/ValueCheck.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QGraphicsObject>
#include <QVariant>

#include <cmath>

namespace plix::tool {
namespace {

// As the card has it: the item shows no-break spaces as spaces.
QString writtenText(const ShownItem& item)
{
    const std::string_view text = item.source.text("text");
    const QString written = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    const QString shown = QString(written).replace(QChar::Nbsp, QLatin1Char(' '));
    return shown == item.text() ? written : item.text();
}

// The nearest box that limits the width of the item.
const ShownItem* boxWithWidth(const ShownItem& item)
{
    const ShownItem* box = item.box;
    while (box && pixelsIn(box->source.text("width")).value_or(0) <= 0)
        box = box->box;
    return box;
}

double widthOf(const ShownItem& item, const QString& word)
{
    if (word == item.text())
        return item.neededWidth();
    const QFont font = item.object->property("font").value<QFont>();
    return std::ceil(QFontMetricsF(font).horizontalAdvance(word));
}

QString colorName(QRgb color)
{
    return QColor(color).name().toUpper();
}

} // namespace

QString pixels(double value)
{
    return QString::number(static_cast<int>(value));
}

QString roomText(double needed, double available)
{
    return QStringLiteral("needs %1 pixels, but has %2").arg(pixels(needed), pixels(available));
}

QString cutMessage(const ShownItem& item)
{
    const double available = item.place().width();
    const QString reason = item.neededWidth() > available
        ? roomText(item.neededWidth(), available)
        : QStringLiteral("has more lines than are shown");
    return QStringLiteral("the text is cut: %1 %2").arg(quoted(item.text()), reason);
}

bool canWrap(const ShownItem& item)
{
    return canBreak(writtenText(item));
}

QString widthMend(const ShownItem& item, double needed)
{
    QString size = QStringLiteral("a smaller \"size\"");
    const ShownItem* const box = boxWithWidth(item);
    if (!box)
        return size;
    const double width = box->place().width() + needed - item.place().width();
    return QStringLiteral("\"width\": \"%1px\" in %2, or ").arg(pixels(width), box->source.path)
        + size;
}

QString splitMessage(const ShownItem& item, const SplitWord& word)
{
    QStringList parts;
    for (const QString& part : word.parts)
        parts.append(quoted(part));
    QString split = QStringLiteral("the word %1 is split into %2")
                        .arg(quoted(word.text()), parts.join(QStringLiteral(" and ")));
    // Spans may have other fonts.
    if (item.source.has("contents"))
        return split;
    return split + QStringLiteral("; it ")
        + roomText(widthOf(item, word.text()), item.place().width());
}

QString splitMend(const ShownItem& item, const SplitWord& word)
{
    const QString mend = widthMend(item, widthOf(item, word.text()));
    return isShortWord(word.text())
        ? mend
        : QStringLiteral("\"\\u200b\" in the word where it may break, or ") + mend;
}

QString contrastMessage(const ShownItem& item, const ContrastResult& result)
{
    QString message =
        QStringLiteral("the contrast with what lies behind it is %1:1, but %2:1 is needed")
            .arg(QString::number(std::floor(result.ratio * 10) / 10, 'f', 1),
                 QString::number(result.needed, 'f', 1));
    if (item.source.text("color").empty() && !item.source.has("contents"))
        message +=
            QStringLiteral("; it has no \"color\" (%1 is drawn)").arg(colorName(result.color));
    return message;
}

QString contrastMend(const ContrastResult& result)
{
    if (result.better)
        return QStringLiteral("\"color\": %1").arg(quoted(colorName(*result.better)));
    return result.isOnDark ? QStringLiteral("a lighter \"color\", or a darker background")
                           : QStringLiteral("a darker \"color\", or a lighter background");
}

} // namespace plix::tool
