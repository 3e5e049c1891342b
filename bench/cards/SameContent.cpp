#include "SameContent.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace bench {
namespace {

QString inkOf(const QStringList& texts)
{
    QString ink = texts.join(QString());
    const auto hasNoInk = [](QChar character) { return character.isSpace(); };
    ink.resize(static_cast<int>(std::remove_if(ink.begin(), ink.end(), hasNoInk) - ink.begin()));
    return ink;
}

// On white paper, in cells of about a line's height.
QImage fromAfar(const QImage& picture, const QSize& size)
{
    constexpr int cell = 16;
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.drawImage(0, 0, picture);
    painter.end();
    return paper.scaled(std::max(1, size.width() / cell), std::max(1, size.height() / cell),
                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

int differenceOf(QRgb one, QRgb other)
{
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other))
        + std::abs(qBlue(one) - qBlue(other));
}

} // namespace

bool haveSameTexts(const QStringList& texts, const QStringList& otherTexts)
{
    return inkOf(texts) == inkOf(otherTexts);
}

double pictureDifference(const QImage& picture, const QImage& otherPicture)
{
    const QSize size = picture.size().expandedTo(otherPicture.size());
    const QImage one = fromAfar(picture, size);
    const QImage other = fromAfar(otherPicture, size);
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            sum += differenceOf(one.pixel(x, y), other.pixel(x, y));
    }
    constexpr double largest = 3 * 255;
    return 100 * sum / (largest * one.width() * one.height());
}

} // namespace bench
