// What a picture of a card costs besides decoding, scaling and drawing it.
#include "Compare.h"

#include <plix/Plix.h>

#include <QApplication>
#include <QGraphicsItem>
#include <QImageReader>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr QSize pictureSize(800, 600);
constexpr QSize shownSize(220, 165);

// A picture in a file, drawn here.
class PictureFile {
public:
    PictureFile()
    {
        QImage image(pictureSize, QImage::Format_RGB32);
        QPainter painter(&image);
        QLinearGradient sky(0, 0, 0, pictureSize.height());
        sky.setColorAt(0, Qt::darkBlue);
        sky.setColorAt(1, Qt::yellow);
        painter.fillRect(image.rect(), sky);
        painter.end();
        image.save(path());
    }

    QString path() const { return folder_.filePath(QStringLiteral("picture.png")); }

private:
    QTemporaryDir folder_;
};

const PictureFile& pictureFile()
{
    static const PictureFile file;
    return file;
}

std::string download(PlixDataController*, const std::string&, void*)
{
    return pictureFile().path().toStdString();
}

std::string cardOf(int count, const std::string& component)
{
    std::string contents;
    for (int i = 0; i < count; ++i)
        contents += (i > 0 ? "," : "") + component;
    return R"({"type": "bubble", "body": {"type": "box", "layout": "vertical", "contents": [)"
        + contents + "]}}";
}

std::string cardOfPictures(int count)
{
    return cardOf(count, R"({"type": "image", "url": "picture", "size": "5xl",
                             "aspectRatio": "4:3"})");
}

std::string cardOfBoxes(int count)
{
    return cardOf(count, R"({"type": "box", "layout": "vertical", "width": "220px",
                             "height": "165px", "contents": []})");
}

class Card {
public:
    explicit Card(const std::string& json)
        : controller_(Plix_CreateController())
    {
        Plix_SetDownloadCallBack(controller_, &download, nullptr);
        Plix_InitData(controller_, json);
        root_.reset(Plix_CreateQGraphicsItem(controller_));
    }

    ~Card()
    {
        root_.reset();
        Plix_Free(controller_);
    }

    Card(const Card&) = delete;
    Card& operator=(const Card&) = delete;

    // The first item of the body's box.
    QGraphicsItem& first() const { return *root_->childItems().front()->childItems().front(); }

private:
    PlixDataController* controller_;
    std::unique_ptr<QGraphicsItem> root_;
};

class Canvas {
public:
    void paint(QGraphicsItem& item)
    {
        QStyleOptionGraphicsItem option;
        option.exposedRect = item.boundingRect();
        item.paint(&painter_, &option, nullptr);
    }

    void draw(const QImage& image) { painter_.drawImage(QPointF(), image); }

private:
    QImage image_ {400, 400, QImage::Format_ARGB32_Premultiplied};
    QPainter painter_ {&image_};
};

QImage scaledPicture()
{
    return QImageReader(pictureFile().path())
        .read()
        .scaled(shownSize, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
}

// Painting a picture that was shown before, against drawing it readily scaled.
void repaintAgainstDrawImage(benchmark::State& state)
{
    const Card card(cardOfPictures(1));
    const QImage scaled = scaledPicture();
    Canvas canvas;
    canvas.paint(card.first());
    compare(
        state, [&] { canvas.paint(card.first()); }, [&] { canvas.draw(scaled); });
}
BENCHMARK(repaintAgainstDrawImage)->UseManualTime();

// Showing it for the first time, against reading, scaling and drawing it.
void firstPaintAgainstReader(benchmark::State& state)
{
    Canvas canvas;
    compare(
        state,
        [&] {
            // No other card shows the picture, so it has to be opened.
            const Card card(cardOfPictures(1));
            canvas.paint(card.first());
        },
        [&] { canvas.draw(scaledPicture()); });
}
BENCHMARK(firstPaintAgainstReader)->UseManualTime();

// Building a card of pictures, which decodes none, against one of empty boxes.
void buildAgainstBoxes(benchmark::State& state)
{
    const std::string pictures = cardOfPictures(50);
    const std::string boxes = cardOfBoxes(50);
    compare(
        state, [&] { Card card(pictures); }, [&] { Card card(boxes); });
}
BENCHMARK(buildAgainstBoxes)->UseManualTime();

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", PLIX_BENCH_FONTS_CONF);
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
