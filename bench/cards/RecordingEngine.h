#pragma once

#include "PaintRecord.h"

#include <QPaintEngine>

namespace bench {

// Notes what is painted instead of painting it.
class RecordingEngine : public QPaintEngine {
public:
    RecordingEngine();

    const PaintRecord& record() const { return record_; }

    bool begin(QPaintDevice* device) override;
    bool end() override;
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& state) override;
    void drawPath(const QPainterPath& path) override;
    void drawRects(const QRectF* rects, int count) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override;
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags flags) override;
    void drawTextItem(const QPointF& baseline, const QTextItem& item) override;

private:
    using QPaintEngine::drawPolygon;
    using QPaintEngine::drawRects;

    QTransform transform() const;
    void addTexture(const QPainterPath& outline);

    PaintRecord record_;
};

} // namespace bench
