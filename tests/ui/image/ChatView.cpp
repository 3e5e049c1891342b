#include "ui/image/ChatView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPaintEvent>

namespace plix::test {
namespace {

constexpr int kPatienceMilliseconds = 60'000;

} // namespace

ChatView::ChatView(QGraphicsItem& root)
    : root_(root)
    , view_(&scene_)
{
    scene_.addItem(&root_);
    view_.setFrameShape(QFrame::NoFrame);
    view_.setViewportUpdateMode(QGraphicsView::MinimalViewportUpdate);
    view_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    view_.setSceneRect(0, 0, 300, 5000);
    view_.resize(300, 300);
    view_.viewport()->installEventFilter(this);
    view_.show();
    EXPECT_TRUE(deliverEventsUntil([this] { return paints_ > 0; }));
    deliverEvents();
}

ChatView::~ChatView()
{
    scene_.removeItem(&root_);
}

void ChatView::resetPaints()
{
    paints_ = 0;
    paintedArea_ = QRect();
}

bool ChatView::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        ++paints_;
        paintedArea_ |= static_cast<QPaintEvent*>(event)->region().boundingRect();
    }
    return false;
}

void deliverEvents()
{
    // An update takes several rounds: the scene collects it, then the view, then the window.
    for (int i = 0; i < 20; ++i)
        QApplication::processEvents();
}

bool deliverEventsUntil(const std::function<bool()>& isTrue)
{
    QElapsedTimer timer;
    timer.start();
    while (!isTrue() && !timer.hasExpired(kPatienceMilliseconds))
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    return isTrue();
}

} // namespace plix::test
