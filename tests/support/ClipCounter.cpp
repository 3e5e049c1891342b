#include "support/ClipCounter.h"

#include <QPaintEngine>
#include <QPainterPath>
#include <QRegion>

namespace plix::test {
namespace {

constexpr int kSide = 32000;
constexpr int kDotsPerInch = 96;

bool isRectangle(const QPainterPath& path)
{
    constexpr int kElements = 5;
    QPainterPath rectangle;
    rectangle.addRect(path.boundingRect());
    return path.elementCount() == kElements && path == rectangle;
}

} // namespace

class ClipCounter::Engine : public QPaintEngine {
public:
    Engine()
        : QPaintEngine(AllFeatures)
    {
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& changed) override
    {
        const bool isPath = changed.state().testFlag(DirtyClipPath);
        const bool isRegion = changed.state().testFlag(DirtyClipRegion);
        if ((!isPath && !isRegion) || changed.clipOperation() == Qt::NoClip)
            return;
        ++(isRegion || isRectangle(changed.clipPath()) ? rectangles : paths);
    }

    void drawPath(const QPainterPath&) override { }
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
    }
    void drawTextItem(const QPointF&, const QTextItem&) override { }

    int rectangles = 0;
    int paths = 0;
};

ClipCounter::ClipCounter()
    : engine_(std::make_unique<Engine>())
{
}

ClipCounter::~ClipCounter() = default;

int ClipCounter::rectangles() const
{
    return engine_->rectangles;
}

int ClipCounter::paths() const
{
    return engine_->paths;
}

QPaintEngine* ClipCounter::paintEngine() const
{
    return engine_.get();
}

int ClipCounter::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return kSide;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return kDotsPerInch;
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

} // namespace plix::test
