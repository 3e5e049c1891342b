#include "Canvas.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace bench {

void Canvas::clear(const QSizeF& size)
{
    const QSize pixels(static_cast<int>(std::ceil(std::max(1.0, size.width()))),
                       static_cast<int>(std::ceil(std::max(1.0, size.height()))));
    if (image_.size() != pixels)
        image_ = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::transparent);
}

void Canvas::begin(QPainter& painter)
{
    painter.begin(&image_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
}

} // namespace bench
