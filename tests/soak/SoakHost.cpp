#include "soak/SoakHost.h"

#include "bench/cards/HeapCount.h"
#include "model/PlixItemRegistry.h"
#include "soak/SoakCard.h"

#include <QApplication>
#include <QGraphicsRectItem>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace plix::test {
namespace {

constexpr QRect kWindow(0, 0, 320, 400);

// The scene owns it. It makes the window as large as that.
QGraphicsItem& newBackground()
{
    return *new QGraphicsRectItem(kWindow);
}

std::vector<QGraphicsItem*> itemsOf(QGraphicsItem& root)
{
    std::vector<QGraphicsItem*> items {&root};
    for (std::size_t i = 0; i < items.size(); ++i) {
        for (QGraphicsItem* child : items[i]->childItems())
            items.push_back(child);
    }
    return items;
}

int countData(QGraphicsItem& root)
{
    const std::vector<QGraphicsItem*> items = itemsOf(root);
    return static_cast<int>(std::count_if(items.begin(), items.end(), [](const auto* item) {
        return item->data(plix::kDataItemRole).isValid();
    }));
}

} // namespace

SoakHost::SoakHost()
    : canvas_(kWindow.size(), QImage::Format_ARGB32_Premultiplied)
    , view_(newBackground())
{
}

void SoakHost::live(int n)
{
    PlixDataController* const controller = newController();
    const std::int64_t before = bench::heapCount().liveBytes;
    Plix_InitData(controller, soakCard(n));
    const std::int64_t read = bench::heapCount().liveBytes - before;
    QGraphicsItem* const root = Plix_CreateQGraphicsItem(controller);
    registryBytes_ += kept_.ofCard(read, countData(*root));
    view_.scene().addItem(root);
    use(controller, *root);
    // Either may go first.
    if (n % 2 == 0)
        delete root;
    Plix_Free(controller);
    if (n % 2 != 0)
        delete root;
    QApplication::processEvents();
}

PlixDataController* SoakHost::newController()
{
    PlixDataController* const controller = Plix_CreateController();
    PlixDisplayParam display;
    display.markupEnabled = true;
    Plix_SetDisplayParam(controller, display);
    Plix_SetClickCallBack(controller, &onClick, this);
    Plix_SetMentionHandleCallback(controller, &onMention, this);
    Plix_SetDownloadCallBack(controller, &findPicture, this);
    return controller;
}

void SoakHost::use(PlixDataController* controller, QGraphicsItem& root)
{
    paint();
    click(root);
    select(root);
    Plix_SetHighLightText(controller, {"order"});
    paint();
}

void SoakHost::paint()
{
    QPainter painter(&canvas_);
    view_.scene().render(&painter, kWindow, kWindow);
}

void SoakHost::click(QGraphicsItem& root)
{
    for (QGraphicsItem* item : itemsOf(root)) {
        if (Plix_HasAction(item))
            view_.click(item->sceneBoundingRect().center());
    }
    // The mention.
    view_.pressKey(Qt::Key_Tab);
    view_.pressKey(Qt::Key_Return);
}

void SoakHost::select(const QGraphicsItem& root)
{
    const QRectF rect = root.sceneBoundingRect();
    view_.drag(rect.topLeft() + QPointF(25, 30), rect.topLeft() + QPointF(90, 70));
    view_.pressKey(Qt::Key_C, Qt::ControlModifier);
    view_.click(view_.nowhere());
}

std::string SoakHost::findPicture(PlixDataController*, const std::string& url, void*)
{
    return PLIX_IMAGES "/" + url;
}

void SoakHost::onClick(PlixDataController*, ST_ACTION&, void* self)
{
    ++static_cast<SoakHost*>(self)->clicks_;
}

void SoakHost::onMention(std::int64_t, void* self)
{
    ++static_cast<SoakHost*>(self)->clicks_;
}

} // namespace plix::test
