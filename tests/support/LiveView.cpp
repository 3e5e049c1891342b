#include "support/LiveView.h"

#include "support/Keyboard.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QScreen>
#include <QWindow>

#include <cmath>

namespace plix::test {
namespace {

constexpr double kSpaceAroundRoot = 6;

QSize wholePixels(const QSizeF& size)
{
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

} // namespace

LiveView::LiveView(QGraphicsItem& root, double scale)
    : view_(&scene_)
    , root_(root.toGraphicsObject())
{
    scene_.addItem(&root);
    const double space = kSpaceAroundRoot;
    scene_.setSceneRect(root.sceneBoundingRect().adjusted(-space, -space, space, space));
    view_.setFrameStyle(QFrame::NoFrame);
    view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    view_.scale(scale, scale);
    view_.resize(wholePixels(scene_.sceneRect().size() * scale));
    view_.show();
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    paintAllAgain();
}

LiveView::~LiveView()
{
    if (root_ && root_->scene() == &scene_)
        scene_.removeItem(root_);
}

void LiveView::pressKey(Qt::Key key)
{
    test::pressKey(view_, key);
}

void LiveView::paintAgain(const QRegion& part)
{
    view_.viewport()->repaint(part);
}

void LiveView::paintAllAgain()
{
    view_.viewport()->repaint();
}

void LiveView::paintWhatChanged()
{
    // First the scene collects the changes, then the view requests a paint.
    QApplication::sendPostedEvents();
    QApplication::sendPostedEvents();
}

QImage LiveView::shown() const
{
    return view_.windowHandle()->screen()->grabWindow(view_.winId()).toImage();
}

QRectF LiveView::pixelsOf(const QRectF& sceneRect) const
{
    return view_.viewportTransform().mapRect(sceneRect);
}

QRect differenceOf(const QImage& one, const QImage& other)
{
    QRect difference;
    if (one.size() != other.size())
        return one.rect() | other.rect();
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                difference |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}

} // namespace plix::test
