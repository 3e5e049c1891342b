#include "RecordingEngine.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace bench {

RecordingEngine::RecordingEngine()
    : QPaintEngine(AllFeatures)
{
}

bool RecordingEngine::begin(QPaintDevice*)
{
    return true;
}

bool RecordingEngine::end()
{
    return true;
}

void RecordingEngine::updateState(const QPaintEngineState&) { }

QTransform RecordingEngine::transform() const
{
    return state->transform();
}

void RecordingEngine::drawPath(const QPainterPath& path)
{
    const QPainterPath mapped = transform().map(path);
    if (state->brush().style() == Qt::TexturePattern)
        addTexture(mapped);
    else
        record_.fills.push_back({mapped, state->brush(), state->pen()});
}

void RecordingEngine::drawRects(const QRectF* rects, int count)
{
    for (int i = 0; i < count; ++i) {
        QPainterPath path;
        path.addRect(rects[i]);
        drawPath(path);
    }
}

void RecordingEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode)
{
    QPolygonF polygon;
    for (int i = 0; i < count; ++i)
        polygon << points[i];
    QPainterPath path;
    path.addPolygon(polygon);
    drawPath(path);
}

void RecordingEngine::addTexture(const QPainterPath& outline)
{
    const QBrush& brush = state->brush();
    const QTransform toItem = brush.transform() * transform();
    record_.pictures.push_back(
        {toItem.mapRect(QRectF(QPointF(), QSizeF(brush.textureImage().size()))), outline});
}

void RecordingEngine::drawPixmap(const QRectF& target, const QPixmap&, const QRectF&)
{
    record_.pictures.push_back({transform().mapRect(target), {}});
}

void RecordingEngine::drawImage(const QRectF& target, const QImage&, const QRectF&,
                                Qt::ImageConversionFlags)
{
    record_.pictures.push_back({transform().mapRect(target), {}});
}

void RecordingEngine::drawTextItem(const QPointF& baseline, const QTextItem& item)
{
    record_.runs.push_back(
        {item.text(), item.font(), state->pen().color(), transform().map(baseline), item.width()});
}

} // namespace bench
