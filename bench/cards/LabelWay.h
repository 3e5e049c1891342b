#pragma once

#include "Canvas.h"
#include "Way.h"

#include <QGraphicsScene>

#include <memory>

class QGraphicsLayoutItem;
class QGraphicsWidget;

namespace bench {

struct Card;
struct Element;

// QLabels in linear layouts of a graphics scene, through proxies. Their sizes are
// set once: a proxy does not hand on how high a label is in another width.
class LabelWay : public Way {
public:
    // Both have to live longer.
    LabelWay(const Card& card, const Element& content);
    ~LabelWay() override;

    QStringList texts() const override;
    QImage picture() const override { return canvas_.image(); }

private:
    void build();
    void makeReady();
    void paint();

    const Element& content_;
    std::unique_ptr<QGraphicsScene> scene_;
    std::unique_ptr<QGraphicsWidget> root_;
    Canvas canvas_;
};

} // namespace bench
