#include "ui/image/PictureCard.h"

#include "support/Pixels.h"

#include <QFile>
#include <QPainter>

namespace plix::test {
namespace {

int ignoredMessages = 0;

void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&)
{
    ++ignoredMessages;
}

std::string PLIX_CALL download(PlixDataController*, const std::string& url, void* downloads)
{
    static_cast<std::vector<std::string>*>(downloads)->push_back(url);
    return url;
}

} // namespace

std::string PictureFolder::write(const std::string& name, const QByteArray& bytes) const
{
    QFile file(QString::fromStdString(path(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return path(name);
}

std::string PictureFolder::path(const std::string& name) const
{
    return folder_.filePath(QString::fromStdString(name)).toStdString();
}

PictureCard::PictureCard(const std::string& contents, const std::string& more, float dpi)
    : card_("{\"type\": \"bubble\", " + more + "\"hero\": " + box("vertical", contents) + "}",
            [&](PlixDataController* controller) {
                Plix_SetDownloadCallBack(controller, &download, &downloads_);
                Plix_SetDpi(controller, dpi);
            })
{
}

QImage PictureCard::paint(double scale) const
{
    QGraphicsScene scene;
    scene.addItem(card_.root());
    const QRectF rect = card_.root()->sceneBoundingRect();
    QImage image((rect.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    scene.render(&painter, rect, rect);
    painter.end();
    scene.removeItem(card_.root());
    return image;
}

std::string image(const std::string& path, const std::string& more)
{
    return component("image", more + "\"url\": \"" + path + "\",");
}

std::string icon(const std::string& path, const std::string& more)
{
    return component("icon", more + "\"url\": \"" + path + "\",");
}

std::string list(int count, const std::string& component)
{
    std::string all = component;
    for (int i = 1; i < count; ++i)
        all.append(",").append(component);
    return all;
}

QImage filled(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

QImage noise(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 97 % 256, y * 61 % 256, (x + y) % 2 * 255));
    }
    return image;
}

QRect areaOf(const QImage& image, const QColor& color)
{
    return boundsOfPixels(image, image.rect(),
                          [rgba = color.rgba()](QRgb pixel) { return pixel == rgba; });
}

QtMessagesIgnored::QtMessagesIgnored()
    : before_(qInstallMessageHandler(&ignoreMessage))
{
    ignoredMessages = 0;
}

QtMessagesIgnored::~QtMessagesIgnored()
{
    qInstallMessageHandler(before_);
}

int QtMessagesIgnored::count()
{
    return ignoredMessages;
}

} // namespace plix::test
