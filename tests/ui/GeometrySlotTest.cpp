// A host may connect to the geometryChanged() of a card's items, and do anything
// when a layout has them move: delete items, free the controller, lay out again.
#include "CardTree.h"

#include "api/PlixDataMgr.h"
#include "layout/YogaLayoutItem.h"
#include "support/PlixTest.h"

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

// One card, whose parts the host may end.
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

struct Deed {
    const char* name;
    // `item` is the one whose geometry has changed.
    void (*perform)(Host& host, QGraphicsWidget* item);
    bool endsItems = true;

    friend std::ostream& operator<<(std::ostream& out, const Deed& row) { return out << row.name; }
};

const Deed kDeeds[] = {
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

// Puts every item elsewhere, so that the next layout has all of them move.
void disarrange(QGraphicsItem& root)
{
    for (QGraphicsWidget* widget : widgetsOf(root))
        widget->setGeometry(widget->geometry().adjusted(3, 5, 10, 13));
}

class GeometrySlotMay : public PlixTest,
                        public testing::WithParamInterface<std::tuple<Layout, Deed>> { };

TEST_P(GeometrySlotMay, DoAnything)
{
    const auto& [layout, deed] = GetParam();
    std::size_t count = 1;
    for (std::size_t i = 0; i < count; ++i) {
        SCOPED_TRACE(i);
        Host host;
        host.build();
        const std::vector<QRectF> settled = geometryOf(*host.root);
        disarrange(*host.root);
        const std::vector<QGraphicsWidget*> widgets = widgetsOf(*host.root);
        count = widgets.size();
        bool done = false;
        QGraphicsWidget* const item = widgets.at(i);
        QObject::connect(item, &QGraphicsWidget::geometryChanged, item,
                         [&, item, perform = deed.perform] {
                             if (!std::exchange(done, true))
                                 perform(host, item);
                         });
        layout.perform(host);
        EXPECT_TRUE(done);
        if (!deed.endsItems) {
            EXPECT_EQ(geometryOf(*host.root), settled);
        }
    }
    EXPECT_GT(count, 8U);
}

INSTANTIATE_TEST_SUITE_P(Hosts, GeometrySlotMay,
                         testing::Combine(testing::ValuesIn(kLayouts), testing::ValuesIn(kDeeds)),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name)
                                 + std::get<1>(row.param).name;
                         });

// Connects to the item whose size is the `number`th that a build changes: an
// application may watch all events.
class BuildWatcher : public QObject {
public:
    BuildWatcher(int number, std::function<void(QGraphicsWidget*)> deed)
        : number_(number)
        , deed_(std::move(deed))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        auto* const item = qobject_cast<QGraphicsWidget*>(receiver);
        const bool isMeant = item && event->type() == QEvent::GraphicsSceneResize && number_-- == 0;
        if (isMeant) {
            connect(item, &QGraphicsWidget::geometryChanged, this, [this, item] {
                if (const auto deed = std::exchange(deed_, {}))
                    deed(item);
            });
        }
        return false;
    }

    bool isDone() const { return !deed_; }

private:
    int number_;
    std::function<void(QGraphicsWidget*)> deed_;
};

class GeometrySlotInABuildMay : public PlixTest, public testing::WithParamInterface<Deed> { };

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
        if (!GetParam().endsItems) {
            EXPECT_NE(host.root, nullptr);
        }
    }
    EXPECT_GT(number, 8);
}

INSTANTIATE_TEST_SUITE_P(Hosts, GeometrySlotInABuildMay, testing::ValuesIn(kDeeds),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace plix::test
