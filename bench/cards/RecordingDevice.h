#pragma once

#include "RecordingEngine.h"

#include <QPaintDevice>

class QGraphicsItem;

namespace bench {

class RecordingDevice : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return &engine_; }

    const PaintRecord& record() const { return engine_.record(); }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    mutable RecordingEngine engine_;
};

// What the item itself paints, without its children.
PaintRecord recordPaint(QGraphicsItem& item);

} // namespace bench
