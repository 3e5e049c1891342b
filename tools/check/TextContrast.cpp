#include "check/TextContrast.h"

#include "CardHost.h"
#include "CardPainter.h"
#include "check/BetterColor.h"
#include "check/Contrast.h"
#include "check/InkedWords.h"

#include <QColor>
#include <QFont>
#include <QGraphicsItem>
#include <QGraphicsObject>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QVariant>

#include <algorithm>

namespace plix::tool {
namespace {

// Thin strokes fill at least one pixel then.
constexpr double kScale = 3;
constexpr double kNormalRatio = 4.5;
constexpr double kLargeRatio = 3;
constexpr int kLargePixels = 24;
constexpr int kLargeBoldPixels = 19;

double neededRatio(const QFont& font)
{
    const int large = font.bold() ? kLargeBoldPixels : kLargePixels;
    return font.pixelSize() >= large ? kLargeRatio : kNormalRatio;
}

// Whether the style of a zone has a background.
bool hasBackground(const JsonNode& root, std::string_view zone)
{
    const JsonMember* const styles = root.find("styles");
    const JsonMember* const style = styles ? styles->value.find(zone) : nullptr;
    return style && !textOf(style->value, "backgroundColor").empty();
}

void showTexts(const std::vector<std::unique_ptr<ShownItem>>& items, bool shown)
{
    for (const auto& item : items) {
        if (item->isText())
            item->object->setOpacity(shown ? 1 : 0);
        showTexts(item->children, shown);
    }
}

// The words of a text alone, and what is behind them.
struct PaintedWords {
    const QImage& letters;
    QVector<QRect> places;
    const QImage& behind;
    QPoint offset;

    // Of the word with the lowest contrast. `color`: as if all words had that one.
    Contrast worst(const std::optional<QRgb>& color = std::nullopt) const
    {
        Contrast worst {kMaximumContrast};
        for (const QRect& place : places) {
            const auto contrast = wordContrast(letters, place, behind, offset, color);
            if (contrast && contrast->ratio < worst.ratio)
                worst = *contrast;
        }
        return worst;
    }
};

// `better` finds a colour that is better than the drawn one.
template <typename Better>
ContrastResult resultOf(const Contrast& contrast, double needed, const Better& better)
{
    ContrastResult result {contrast.ratio, needed, contrast.isOnDark, contrast.color, {}};
    if (contrast.ratio < needed)
        result.better = better();
    return result;
}

} // namespace

TextContrast::TextContrast(CardHost& host, const JsonNode& root,
                           const std::vector<std::unique_ptr<ShownItem>>& items)
    : root_(root)
    , card_(host.card().sceneBoundingRect())
{
    showTexts(items, false);
    behind_ =
        paintCard(host.scene(), host.card(), kScale).image.convertToFormat(QImage::Format_RGB32);
    showTexts(items, true);
}

std::optional<ContrastResult> TextContrast::of(const ShownItem& item) const
{
    if (item.source.isA("button"))
        return ofButton(item);
    if (!item.isText() || !hasChosenColors(item))
        return std::nullopt;
    return ofText(item);
}

bool TextContrast::hasChosenColors(const ShownItem& item) const
{
    if (!item.source.text("color").empty() || item.source.has("contents"))
        return true;
    const ShownItem* top = &item;
    for (; top->box; top = top->box) {
        if (!top->box->source.text("backgroundColor").empty())
            return true;
    }
    return hasBackground(root_, top->source.zone);
}

ContrastResult TextContrast::ofText(const ShownItem& item) const
{
    const QFont font = item.object->property("font").value<QFont>();
    const QRect area = toPixels(item.painted());
    const QImage letters = paintAlone(item, area);
    const int lines = std::max(1, item.object->property("shownLineCount").toInt());
    const int gap = std::max(1, static_cast<int>(font.pixelSize() * kScale / 4));
    const PaintedWords words {letters, inkedWords(letters, lines, gap), behind_, area.topLeft()};
    const Contrast worst = words.worst();
    const double needed = neededRatio(font);
    return resultOf(worst, needed, [&] {
        const auto isGood = [&](QRgb color) {
            const bool isGoodForOne = contrastRatio(color, worst.behind) >= needed; // fast
            return isGoodForOne && words.worst(color).ratio >= needed;
        };
        const bool hasColor = !item.source.text("color").empty() || item.source.has("contents");
        return hasColor ? betterShade(worst.color, isGood) : betterDefault(isGood);
    });
}

QImage TextContrast::paintAlone(const ShownItem& item, const QRect& area) const
{
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const QPointF position = item.object->scenePos() - card_.topLeft();
    painter.translate(-area.topLeft());
    painter.scale(kScale, kScale);
    painter.translate(position);
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.object->boundingRect();
    item.object->paint(&painter, &option, nullptr);
    return image;
}

// The label cannot be hidden. Its plate has most of the pixels.
std::optional<ContrastResult> TextContrast::ofButton(const ShownItem& item) const
{
    const QRect area = toPixels(item.place());
    if (item.source.text("color").empty() || area.isEmpty())
        return std::nullopt;
    const Contrast contrast = labelContrast(behind_, area);
    const double needed = neededRatio(item.object->property("labelFont").value<QFont>());
    // The colour is that of the label or that of the plate.
    const std::string_view name = item.source.text("color");
    const QColor color(QString::fromUtf8(name.data(), static_cast<int>(name.size())));
    const bool isPlate = contrast.behind == color.rgb();
    const QRgb fixed = isPlate ? contrast.color : contrast.behind;
    return resultOf(contrast, needed, [&] {
        const auto isGood = [&](QRgb shade) { return contrastRatio(shade, fixed) >= needed; };
        return betterShade(isPlate ? contrast.behind : contrast.color, isGood);
    });
}

QRect TextContrast::toPixels(const QRectF& rect) const
{
    const QRectF inCard = rect.translated(-card_.topLeft());
    const QRectF scaled(inCard.topLeft() * kScale, inCard.size() * kScale);
    return scaled.toAlignedRect().intersected(behind_.rect());
}

} // namespace plix::tool
