// Items paint inside their rectangles only.
#include "CardTree.h"
#include "ExampleCards.h"
#include "PaintedCardWriter.h"
#include "support/Pixels.h"
#include "support/PlixTest.h"
#include "ui/text/PlixTextUI.h"

#include <QGraphicsItem>
#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace plix::test {
namespace {

constexpr int kMargin = 60; // in pixels
constexpr double kMaximumSize = 1000;
constexpr QRgb kUnpainted = 0;

// The item alone, clipped to its shape if a scene would clip it.
QImage paintAlone(QGraphicsItem& item, double scale)
{
    const QRectF rect = item.boundingRect();
    const QSize size = (rect.size() * scale).toSize() + 2 * QSize(kMargin, kMargin);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(kUnpainted);
    QPainter painter(&image);
    painter.translate(kMargin, kMargin);
    painter.scale(scale, scale);
    painter.translate(-rect.topLeft());
    if (item.flags().testFlag(QGraphicsItem::ItemClipsToShape))
        painter.setClipPath(item.shape());
    QStyleOptionGraphicsItem option;
    option.exposedRect = rect;
    item.paint(&painter, &option, nullptr);
    return image;
}

void expectNothingOutside(const QImage& image, const QRect& inside)
{
    const QRect painted =
        boundsOfPixels(image, image.rect(), [](QRgb pixel) { return pixel != kUnpainted; });
    if (!painted.isEmpty() && !inside.contains(painted)) {
        ADD_FAILURE() << painted.width() << " x " << painted.height() << " at " << painted.x()
                      << ", " << painted.y() << " is not inside of " << inside.width() << " x "
                      << inside.height() << " at " << kMargin;
    }
}

// Not texts: their letters may stick out, and they have tests of their own.
void expectItemsPaintInside(const std::string& json, double scale)
{
    const TestCard card(json, &showExamplePictures);
    forEachItem(*card.root(), [scale](QGraphicsItem& item) {
        const QRectF rect = item.boundingRect();
        if (dynamic_cast<PlixTextUI*>(&item)
            || std::max(rect.width(), rect.height()) > kMaximumSize)
            return;
        const QRectF inside(QPointF(kMargin, kMargin), rect.size() * scale);
        SCOPED_TRACE(item.toGraphicsObject()->metaObject()->className());
        expectNothingOutside(paintAlone(item, scale), inside.toAlignedRect());
    });
}

using PaintedArea = PlixTest;

TEST_F(PaintedArea, IsInsideTheItemsOfExampleCards)
{
    for (const std::string& name : exampleNames()) {
        SCOPED_TRACE(name);
        expectItemsPaintInside(exampleCard(name), 1.5);
    }
}

TEST_F(PaintedArea, IsInsideTheItemsOfGeneratedCards)
{
    constexpr double kScales[] = {1, 1.5, 2};
    for (unsigned seed = 0; seed < 60; ++seed) {
        const std::string json = PaintedCardWriter(seed).card();
        SCOPED_TRACE(json);
        expectItemsPaintInside(json, kScales[seed % std::size(kScales)]);
    }
}

} // namespace
} // namespace plix::test
