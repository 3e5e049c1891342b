// Pictures of emoji are scaled once for each size, and never to a size that is much
// larger than what is visible of them.
#include "ScaledPictures.h"

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>
#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <set>
#include <vector>

namespace {

constexpr int kMaximumSide = 256;

const QString kSmileWithoutText = QStringLiteral("<e code=\"1F600\"/>");

// An application with one picture for all emoji.
class RedPictureSupport : public KestroControlSupport {
public:
    explicit RedPictureSupport(const QSize& size)
        : picture_(size, QImage::Format_ARGB32_Premultiplied)
    {
        picture_.fill(Qt::red);
        KestroControlManager::GetInstance()->SetKestroControlSupport(this);
    }
    ~RedPictureSupport() override
    {
        KestroControlManager::GetInstance()->SetKestroControlSupport(nullptr);
    }

    RedPictureSupport(const RedPictureSupport&) = delete;
    RedPictureSupport& operator=(const RedPictureSupport&) = delete;

    QString GetFontFamily() const override { return {}; }
    QImage GetEmojiImage(const QString&) const override { return picture_; }

private:
    QImage picture_;
};

// Records the images that are drawn.
class ImageRecorder : public QPaintEngine {
public:
    ImageRecorder()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override { }
    void drawPath(const QPainterPath&) override { }
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
    void drawTextItem(const QPointF&, const QTextItem&) override { }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
    void drawImage(const QRectF&, const QImage& image, const QRectF&,
                   Qt::ImageConversionFlags) override
    {
        images.push_back(image);
    }
    Type type() const override { return User; }

    std::vector<QImage> images;
};

class RecordingDevice : public QImage {
public:
    RecordingDevice()
        : QImage(1000, 1000, Format_ARGB32_Premultiplied)
    {
    }

    QPaintEngine* paintEngine() const override { return &recorder_; }
    const std::vector<QImage>& images() const { return recorder_.images; }

    void paint(TextItem& item, double zoom)
    {
        QPainter painter(this);
        painter.scale(zoom, zoom);
        QStyleOptionGraphicsItem option;
        option.exposedRect = item.boundingRect();
        item.paint(&painter, &option, nullptr);
    }

private:
    mutable ImageRecorder recorder_;
};

struct EmojiItem : TextItem {
    EmojiItem()
    {
        SetMarkupEnabled(true);
        InsertRichText(kSmileWithoutText + kSmileWithoutText, true);
    }
};

// Images that were scaled separately have different keys.
std::set<qint64> keysOf(const std::vector<QImage>& images)
{
    std::set<qint64> keys;
    for (const QImage& image : images)
        keys.insert(image.cacheKey());
    return keys;
}

TEST(EmojiPaint, DoesNotScaleAgainWhenRepeated)
{
    const RedPictureSupport support({100, 80});
    EmojiItem item;
    EmojiItem other;
    RecordingDevice device;
    for (int i = 0; i < 3; ++i) {
        device.paint(item, 2);
        device.paint(other, 2);
    }
    EXPECT_EQ(device.images().size(), 12u);
    EXPECT_EQ(keysOf(device.images()).size(), 1u) << "items share the scaled picture";
}

TEST(EmojiPaint, ScalesOnceForEachSize)
{
    const RedPictureSupport support({100, 100});
    EmojiItem item;
    RecordingDevice device;
    for (int i = 0; i < 3; ++i) {
        for (const double zoom : {1.0, 1.5, 2.0, 3.0})
            device.paint(item, zoom);
    }
    EXPECT_EQ(keysOf(device.images()).size(), 4u);
}

TEST(EmojiPaint, ScalesToTheHeightOfTheLine)
{
    const RedPictureSupport support({100, 50});
    EmojiItem item;
    RecordingDevice device;
    device.paint(item, 3);
    const int side = static_cast<int>(item.boundingRect().height()) * 3;
    EXPECT_EQ(device.images().front().size(), QSize(side, side / 2));
}

TEST(EmojiPaint, MakesNoLargePictureAtAnyZoom)
{
    const RedPictureSupport support({4000, 3000});
    EmojiItem item;
    for (const double zoom : {10.0, 14.0, 50.0, 200.0, 1e6}) {
        RecordingDevice device;
        device.paint(item, zoom);
        ASSERT_EQ(device.images().size(), 2u);
        for (const QImage& image : device.images()) {
            EXPECT_LE(image.width(), kMaximumSide) << zoom;
            EXPECT_LE(image.height(), kMaximumSide) << zoom;
        }
    }
}

TEST(EmojiPaint, FillsItsSquareAtAnyZoom)
{
    const RedPictureSupport support({60, 60});
    EmojiItem item;
    for (const double zoom : {1.0, 12.0, 20.0, 200.0}) {
        QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        const QPointF middle(item.boundingRect().height() / 2, item.boundingRect().height() / 2);
        painter.translate(20, 20);
        painter.scale(zoom, zoom);
        painter.translate(-middle);
        item.paint(&painter, nullptr, nullptr);
        EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red)) << zoom;
        EXPECT_FALSE(painter.testRenderHint(QPainter::SmoothPixmapTransform));
    }
}

TEST(ScaledPictures, HaveAMaximumSizeInBytes)
{
    constexpr int kMaxBytes = 100 * 100 * 4 * 5;
    kestro::ScaledPictures pictures(kMaxBytes);
    QImage picture(100, 100, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::red);
    const qint64 first = pictures.Get(picture, {90, 90}).cacheKey();
    EXPECT_EQ(pictures.Get(picture, {90, 90}).cacheKey(), first);
    for (int side = 1; side < 90; ++side) {
        EXPECT_EQ(pictures.Get(picture, {side, side}).size(), QSize(side, side));
        EXPECT_LE(pictures.Bytes(), kMaxBytes);
    }
    EXPECT_NE(pictures.Get(picture, {90, 90}).cacheKey(), first) << "it was removed to make room";
}

TEST(ScaledPictures, ScalePicturesThatAreTooLargeToKeep)
{
    kestro::ScaledPictures pictures(100);
    QImage picture(100, 100, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::red);
    EXPECT_EQ(pictures.Get(picture, {50, 50}).size(), QSize(50, 50));
    EXPECT_EQ(pictures.Bytes(), 0);
}

} // namespace
