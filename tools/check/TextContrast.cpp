#include "check/TextContrast.h"

#include "CardHost.h"
#include "CardPainter.h"
#include "check/Contrast.h"
#include "check/InkedWords.h"

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
    ContrastResult worst {kMaximumContrast, neededRatio(font), false};
    for (const QRect& word : inkedWords(letters, lines, gap)) {
        const std::optional<Contrast> contrast =
            wordContrast(letters, word, behind_, area.topLeft());
        if (contrast && contrast->ratio < worst.ratio) {
            worst.ratio = contrast->ratio;
            worst.isOnDark = contrast->isOnDark;
        }
    }
    return worst;
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
    return ContrastResult {contrast.ratio,
                           neededRatio(item.object->property("labelFont").value<QFont>()),
                           contrast.isOnDark};
}

QRect TextContrast::toPixels(const QRectF& rect) const
{
    const QRectF inCard = rect.translated(-card_.topLeft());
    const QRectF scaled(inCard.topLeft() * kScale, inCard.size() * kScale);
    return scaled.toAlignedRect().intersected(behind_.rect());
}

} // namespace plix::tool
