#pragma once

#include <QImage>

class QPainter;

namespace bench {

// What the ways paint on: a picture in memory, made before the time is taken.
class Canvas {
public:
    // Transparent, in the size of a card.
    void clear(const QSizeF& size);

    // With the hints of a chat's view.
    void begin(QPainter& painter);

    const QImage& image() const { return image_; }

private:
    QImage image_;
};

} // namespace bench
