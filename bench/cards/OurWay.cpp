#include "OurWay.h"

#include "CardHost.h"
#include "ElementReader.h"

#include <plix/Plix.h>

#include <QCoreApplication>
#include <QGraphicsWidget>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace bench {

OurWay::OurWay(const CardHost& host, const Card& card, const std::string& word)
    : Way("ours")
    , host_(host)
    , card_(card)
    , words_ {word}
{
    on(Step::Read, [this] { read(); });
    on(Step::Build, [this] { build(); });
    before(Step::FirstPaint, [this] { enterScene(); });
    on(Step::FirstPaint, [this] { paintScene(); });
    before(Step::RepaintScene, [this] { canvas_.clear(scene_->sceneRect().size()); });
    on(Step::RepaintScene, [this] { paintScene(); });
    before(Step::RepaintItems, [this] { listItems(); });
    on(Step::RepaintItems, [this] { paintItems(); });
    on(Step::RefreshFirst, [this] { refresh(); });
    on(Step::RefreshAgain, [this] { refresh(); });
    on(Step::OtherHeight, [this] { setHeight(); });
    on(Step::OtherWidth, [this] { setWidth(); });
    on(Step::Highlight, [this] { highlight(); });
    on(Step::Delete, [this] { free(); });
}

OurWay::~OurWay()
{
    free();
}

void OurWay::read()
{
    controller_ = host_.newController();
    Plix_InitData(controller_, card_.json);
}

void OurWay::build()
{
    item_ = Plix_CreateQGraphicsItem(controller_);
}

void OurWay::enterScene()
{
    scene_ = std::make_unique<QGraphicsScene>();
    scene_->addItem(item_);
    scene_->setSceneRect(item_->sceneBoundingRect());
    // Qt prepares new items for their first paint when control returns to it.
    QCoreApplication::processEvents();
    canvas_.clear(scene_->sceneRect().size());
}

void OurWay::paintScene()
{
    QPainter painter;
    canvas_.begin(painter);
    scene_->render(&painter, QRectF(QPointF(), scene_->sceneRect().size()), scene_->sceneRect());
}

void OurWay::listItems()
{
    canvas_.clear(scene_->sceneRect().size());
    painted_.clear();
    const QTransform toCanvas =
        QTransform::fromTranslate(-scene_->sceneRect().x(), -scene_->sceneRect().y());
    for (QGraphicsItem* item : scene_->items(Qt::AscendingOrder)) {
        if (item->isVisible() && !(item->flags() & QGraphicsItem::ItemHasNoContents))
            painted_.push_back({item, item->sceneTransform() * toCanvas});
    }
}

void OurWay::paintItems()
{
    QPainter painter;
    canvas_.begin(painter);
    QStyleOptionGraphicsItem option;
    for (const Painted& painted : painted_) {
        painter.setTransform(painted.transform);
        option.exposedRect = painted.item->boundingRect();
        painted.item->paint(&painter, &option, nullptr);
    }
}

void OurWay::refresh()
{
    Plix_RefreshLayout(controller_);
}

// Lays the card out again, with every text measured.
void OurWay::setHeight()
{
    constexpr int more = 40;
    const int height = static_cast<int>(item_->boundingRect().height());
    Plix_ModifyHeight(controller_, height + more);
}

// The card's own width wins: it is laid out again, but texts need no new lines.
void OurWay::setWidth()
{
    auto* widget = static_cast<QGraphicsWidget*>(item_->toGraphicsObject());
    constexpr qreal narrower = 0.9;
    widget->resize(widget->size().width() * narrower, widget->size().height());
    Plix_RefreshLayout(controller_);
}

void OurWay::highlight()
{
    Plix_SetHighLightText(controller_, words_);
}

void OurWay::free()
{
    delete std::exchange(item_, nullptr);
    Plix_Free(std::exchange(controller_, nullptr));
}

QStringList OurWay::texts() const
{
    return textsOf(readElement(*item_));
}

} // namespace bench
