// The rounded outline of a card.
#include "support/RowName.h"
#include "ui/PlixCardOutline.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <ostream>

namespace plix::test {
namespace {

const QRectF kCard(0, 0, 100, 80);

struct RectRow {
    const char* name;
    QRectF rect;
    bool isInside;
    bool isCutInCorners;

    friend std::ostream& operator<<(std::ostream& out, const RectRow& row)
    {
        return out << row.name;
    }
};

class CardOutline : public testing::TestWithParam<RectRow> { };

TEST_P(CardOutline, KnowsWhatItCuts)
{
    const PlixCardOutline outline(kCard);
    EXPECT_EQ(outline.Contains(GetParam().rect), GetParam().isInside);
    EXPECT_EQ(outline.Cut(GetParam().rect).has_value(), GetParam().isCutInCorners);
}

QImage painted(double scale, bool isSmooth, const std::function<void(QPainter&)>& paint)
{
    QImage image(320, 260, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(7, 9);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing, isSmooth);
    paint(painter);
    return image;
}

TEST_P(CardOutline, FillsTheSamePixelsAsInAClip)
{
    const PlixCardOutline outline(kCard);
    if (!outline.Cut(GetParam().rect))
        return;
    for (const QColor& color : {QColor(Qt::red), QColor(20, 90, 200, 120)}) {
        for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
            for (const bool isSmooth : {false, true}) {
                const QImage filled = painted(scale, isSmooth, [&](QPainter& painter) {
                    outline.Fill(painter, GetParam().rect, color);
                });
                const QImage clipped = painted(scale, isSmooth, [&](QPainter& painter) {
                    painter.setClipPath(outline.Path());
                    painter.fillRect(GetParam().rect, color);
                });
                EXPECT_EQ(filled, clipped) << scale << (isSmooth ? ", smooth" : "");
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rects, CardOutline,
    testing::Values(RectRow {"WholeCard", kCard, false, true},
                    RectRow {"TopZone", {0, 0, 100, 30}, false, true},
                    RectRow {"MiddleZone", {0, 30, 100, 20}, true, true},
                    RectRow {"BottomZone", {0, 50, 100, 30}, false, true},
                    RectRow {"ZoneAsHighAsACorner", {0, 0, 100, 12}, false, true},
                    RectRow {"ZoneLowerThanACorner", {0, 0, 100, 8}, false, false},
                    RectRow {"ZoneBelowALowOne", {0, 8, 100, 72}, false, false},
                    RectRow {"Inside", {20, 20, 30, 30}, true, false},
                    RectRow {"AtTheTop", {12, 0, 76, 20}, true, false},
                    RectRow {"AtTheLeft", {0, 12, 20, 56}, true, false},
                    RectRow {"InACornerButInside", {5, 5, 90, 70}, true, false},
                    RectRow {"InACorner", {3, 3, 20, 20}, false, false},
                    RectRow {"OneCorner", {0, 0, 50, 80}, false, false},
                    RectRow {"BeyondTheCard", {20, 20, 90, 30}, false, false},
                    RectRow {"Empty", {0, 0, 0, 0}, true, false}),
    RowName());

} // namespace
} // namespace plix::test
