// A host may connect to geometryChanged() of a card's items, and do anything when a layout
// moves them: delete items, free the controller, lay out again.
#include "CardTree.h"

#include "api/PlixDataMgr.h"
#include "layout/YogaLayoutItem.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsWidget>
#include <QPointer>

#include <ostream>
#include <tuple>

namespace plix::test {
namespace {

std::string card()
{
    const std::string contents = text("wrapped words in a column", R"("wrap": true,)") + ","
        + component("image", R"("size": "xxs",)") + ","
        + component("separator", R"("margin": "md",)") + ","
        + box("horizontal",
              component("icon") + "," + text("two wrapped words", R"("wrap": true,)") + ","
                  + component("filler") + "," + box("vertical", component("spacer")))
        + ","
        + component("button",
                    R"("offsetTop": "5%", "action": {"type": "uri", "uri": "a", "label": "b"},)");
    return bubbleWithBody(box("vertical", contents),
                          R"("styles": {"body": {"separator": true}},
        "header": )" + box("vertical", text("title"))
                              + ",");
}

// A host with one card. It may delete any part of the card.
struct Host {
    Host()
        : controller(Plix_CreateController())
    {
        Plix_InitData(controller, card());
    }
    ~Host()
    {
        delete root;
        free();
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    void build()
    {
        QGraphicsItem* const item = Plix_CreateQGraphicsItem(controller);
        root = item ? item->toGraphicsObject() : nullptr;
    }

    void free() { Plix_Free(std::exchange(controller, nullptr)); }

    PlixDataController* controller;
    QPointer<QGraphicsObject> root; // null while it is built
};

struct SlotAction {
    const char* name;
    // `item` is the one whose geometry has changed.
    void (*perform)(Host& host, QGraphicsWidget* item);
    bool deletesItems = true;

    friend std::ostream& operator<<(std::ostream& out, const SlotAction& row)
    {
        return out << row.name;
    }
};

const SlotAction kActions[] = {
    {"DeletesTheCard", [](Host&, QGraphicsWidget* item) { delete item->topLevelItem(); }},
    {"DeletesTheCardAndFrees",
     [](Host& host, QGraphicsWidget* item) {
         delete item->topLevelItem();
         host.free();
     }},
    {"FreesAndDeletesTheCard",
     [](Host& host, QGraphicsWidget* item) {
         host.free();
         delete item->topLevelItem();
     }},
    {"DeletesTheItem", [](Host&, QGraphicsWidget* item) { delete item; }},
    {"DeletesTheItemAndLaysOut",
     [](Host& host, QGraphicsWidget* item) {
         delete item;
         Plix_RefreshLayout(host.controller);
     }},
    {"DeletesTheParent",
     [](Host&, QGraphicsWidget* item) {
         QGraphicsItem* const parent = item->parentItem();
         delete (parent ? parent : item);
     }},
    {"DeletesTheChildren", [](Host&, QGraphicsWidget* item) { qDeleteAll(item->childItems()); }},
    {"DeletesTheSiblings",
     [](Host&, QGraphicsWidget* item) {
         if (const QGraphicsItem* parent = item->parentItem()) {
             for (QGraphicsItem* child : parent->childItems()) {
                 if (child != item)
                     delete child;
             }
         }
     }},
    {"Frees", [](Host& host, QGraphicsWidget*) { host.free(); }, false},
    {"Refreshes", [](Host& host, QGraphicsWidget*) { Plix_RefreshLayout(host.controller); }, false},
    {"ModifiesTheHeight",
     [](Host& host, QGraphicsWidget*) { Plix_ModifyHeight(host.controller, 0); }, false},
};

struct Layout {
    const char* name;
    void (*perform)(Host& host);

    friend std::ostream& operator<<(std::ostream& out, const Layout& row)
    {
        return out << row.name;
    }
};

const Layout kLayouts[] = {
    {"Refresh", [](Host& host) { Plix_RefreshLayout(host.controller); }},
    {"ModifyHeight", [](Host& host) { Plix_ModifyHeight(host.controller, 0); }},
};

std::vector<QGraphicsWidget*> widgetsOf(QGraphicsItem& root)
{
    std::vector<QGraphicsWidget*> widgets;
    forEachItem(root, [&](QGraphicsItem& item) {
        if (auto* widget = dynamic_cast<QGraphicsWidget*>(&item))
            widgets.push_back(widget);
    });
    return widgets;
}

// Moves every item, so that the next layout moves all of them back.
void moveAllItems(QGraphicsItem& root)
{
    for (QGraphicsWidget* widget : widgetsOf(root))
        widget->setGeometry(widget->geometry().adjusted(3, 5, 10, 13));
}

class GeometrySlotMay : public PlixTest,
                        public testing::WithParamInterface<std::tuple<Layout, SlotAction>> { };

TEST_P(GeometrySlotMay, DoAnything)
{
    const auto& [layout, action] = GetParam();
    std::size_t count = 1;
    for (std::size_t i = 0; i < count; ++i) {
        SCOPED_TRACE(i);
        Host host;
        host.build();
        const std::vector<QRectF> settled = geometryOf(*host.root);
        moveAllItems(*host.root);
        const std::vector<QGraphicsWidget*> widgets = widgetsOf(*host.root);
        count = widgets.size();
        bool done = false;
        QGraphicsWidget* const item = widgets.at(i);
        QObject::connect(item, &QGraphicsWidget::geometryChanged, item,
                         [&, item, perform = action.perform] {
                             if (!std::exchange(done, true))
                                 perform(host, item);
                         });
        layout.perform(host);
        EXPECT_TRUE(done);
        if (!action.deletesItems) {
            EXPECT_EQ(geometryOf(*host.root), settled);
        }
    }
    EXPECT_GT(count, 8U);
}

INSTANTIATE_TEST_SUITE_P(Hosts, GeometrySlotMay,
                         testing::Combine(testing::ValuesIn(kLayouts), testing::ValuesIn(kActions)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name)
                                 + std::get<1>(row.param).name;
                         });

// Connects to the item whose size is the `number`th that a build changes. It watches all
// events of the application, as a host may.
class BuildWatcher : public QObject {
public:
    BuildWatcher(int number, std::function<void(QGraphicsWidget*)> action)
        : number_(number)
        , action_(std::move(action))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        auto* const item = qobject_cast<QGraphicsWidget*>(receiver);
        const bool isNext = item && event->type() == QEvent::GraphicsSceneResize && number_-- == 0;
        if (isNext) {
            connect(item, &QGraphicsWidget::geometryChanged, this, [this, item] {
                if (const auto action = std::exchange(action_, {}))
                    action(item);
            });
        }
        return false;
    }

    bool isDone() const { return !action_; }

private:
    int number_;
    std::function<void(QGraphicsWidget*)> action_;
};

class GeometrySlotInABuildMay : public PlixTest, public testing::WithParamInterface<SlotAction> { };

TEST_P(GeometrySlotInABuildMay, DoAnything)
{
    int number = 0;
    for (bool isDone = true; isDone; ++number) {
        SCOPED_TRACE(number);
        Host host;
        const BuildWatcher watcher(number,
                                   [&](QGraphicsWidget* item) { GetParam().perform(host, item); });
        host.build();
        isDone = watcher.isDone();
        if (!GetParam().deletesItems) {
            EXPECT_NE(host.root, nullptr);
        }
    }
    EXPECT_GT(number, 8);
}

INSTANTIATE_TEST_SUITE_P(Hosts, GeometrySlotInABuildMay, testing::ValuesIn(kActions), RowName());

} // namespace
} // namespace plix::test
