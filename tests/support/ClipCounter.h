#pragma once

#include <QPaintDevice>

#include <memory>

namespace plix::test {

// A paint device that paints nothing and counts the clips that painters set before
// they draw. Pixels of the device are those of a screen.
class ClipCounter : public QPaintDevice {
public:
    ClipCounter();
    ~ClipCounter() override;

    ClipCounter(const ClipCounter&) = delete;
    ClipCounter& operator=(const ClipCounter&) = delete;

    int rectangles() const;
    int paths() const;
    int all() const { return rectangles() + paths(); }

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    std::unique_ptr<Engine> engine_;
};

} // namespace plix::test
