#include "RecordingDevice.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace bench {
namespace {

// As large as an image may be, so that nothing is left out.
constexpr int side = 32000;
constexpr int dotsPerInch = 96;
constexpr int millimetres = 8467;

} // namespace

int RecordingDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return side;
    case PdmWidthMM:
    case PdmHeightMM:
        return millimetres;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

PaintRecord recordPaint(QGraphicsItem& item)
{
    RecordingDevice device;
    QPainter painter(&device);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.boundingRect();
    item.paint(&painter, &option, nullptr);
    painter.end();
    return device.record();
}

} // namespace bench
