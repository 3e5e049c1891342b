#pragma once

#include "Way.h"

#include <QQuickRenderControl>
#include <QSizeF>

#include <memory>

class QQmlComponent;
class QQuickItem;
class QQuickWindow;

namespace bench {

struct Card;
struct Element;

// Qt Quick with layouts and the software renderer. The QML file is compiled
// before, with the content of the message in it.
class QuickWay : public Way {
public:
    // `card` has to live longer.
    QuickWay(const Card& card, const Element& content);
    ~QuickWay() override;

    QStringList texts() const override;
    QImage picture() const override { return picture_; }

private:
    void build();
    void takeSize();
    void paint();
    void setWidth();

    const QSizeF size_;
    std::unique_ptr<QQuickRenderControl> control_;
    std::unique_ptr<QQuickWindow> window_;
    std::unique_ptr<QQmlComponent> component_;
    std::unique_ptr<QQuickItem> item_;
    QImage picture_;
};

} // namespace bench
