// Memory that runs out at each point of a card's life.
#include "api/AllocationFaults.h"
#include "api/PlixCatchExceptions.h"
#include "support/LeaksIgnored.h"
#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/CardTree.h"
#include "ui/image/PictureBytes.h"
#include "ui/image/PictureCard.h"

#include <QPainter>
#include <QPointer>

#include <list>
#include <optional>
#include <ostream>
#include <span>
#include <utility>

namespace plix::test {
namespace {

using Kind = AllocationFaults::Kind;

struct CardRow {
    const char* name;
    std::string contents; // of a box

    friend std::ostream& operator<<(std::ostream& out, const CardRow& row)
    {
        return out << row.name;
    }
};

std::string PLIX_CALL findPicture(PlixDataController*, const std::string& url, void* folder)
{
    return static_cast<const PictureFolder*>(folder)->path(url);
}

void PLIX_CALL countClick(PlixDataController*, ST_ACTION&, void* clicks)
{
    ++*static_cast<int*>(clicks);
}

void PLIX_CALL ignoreMention(std::int64_t, void*) { }

// The life of a card, step by step. A step does nothing if one that it needs has failed.
class Life {
public:
    Life(std::string json, PictureFolder& pictures)
        : json_(std::move(json))
        , pictures_(pictures)
    {
    }

    ~Life()
    {
        view_.reset();
        delete root_;
        Plix_Free(controller_);
    }

    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

    void create()
    {
        controller_ = Plix_CreateController();
        PlixDisplayParam display;
        display.markupEnabled = true;
        Plix_SetDisplayParam(controller_, display);
        Plix_SetClickCallBack(controller_, &countClick, &clicks_);
        Plix_SetMentionHandleCallback(controller_, &ignoreMention, nullptr);
        Plix_SetDownloadCallBack(controller_, &findPicture, &pictures_);
    }

    void read() { Plix_InitData(controller_, json_); }

    void build()
    {
        QGraphicsItem* const item = Plix_CreateQGraphicsItem(controller_);
        root_ = item ? item->toGraphicsObject() : nullptr;
    }

    // Not a step of the library's.
    void show()
    {
        if (!root_)
            return;
        view_.emplace(*root_);
        picture_ = QImage(300, 300, QImage::Format_ARGB32_Premultiplied);
        forEachItem(*root_, [this](QGraphicsItem& item) {
            if (Plix_HasAction(&item))
                clicked_.push_back(item.sceneBoundingRect().center());
        });
    }

    void paint()
    {
        if (!view_)
            return;
        picture_.fill(Qt::white);
        QPainter painter(&picture_);
        view_->scene().render(&painter, picture_.rect(), picture_.rect());
    }

    void click()
    {
        if (!view_)
            return;
        for (const QPointF& place : clicked_)
            view_->click(place);
        view_->pressKey(Qt::Key_Tab);
        view_->pressKey(Qt::Key_Space);
    }

    void select()
    {
        if (!view_)
            return;
        const QRectF rect = root_->sceneBoundingRect();
        view_->drag(rect.topLeft() + QPointF(22, 25), rect.center());
        view_->pressKey(Qt::Key_C, Qt::ControlModifier);
        view_->doubleClick(rect.topLeft() + QPointF(30, 28));
    }

    void change()
    {
        Plix_SetHighLightText(controller_, words_);
        Plix_ModifyHeight(controller_, 500);
        Plix_SetBubbleBkColor(controller_, color_);
        Plix_ResumeBubbleBkColor(controller_);
        Plix_RefreshLayout(controller_);
    }

    void freeItem() { delete root_; }

    void freeController() { Plix_Free(std::exchange(controller_, nullptr)); }

    const QImage& picture() const { return picture_; }
    bool isClickable() const { return !clicked_.empty(); }
    int clicks() const { return clicks_; }

private:
    // What the host allocates itself, it has before.
    const std::string json_;
    const std::string color_ = "#80FFEEDD";
    const std::list<std::string> words_ {"words", "other"};
    std::vector<QPointF> clicked_;
    PictureFolder& pictures_;
    PlixDataController* controller_ = nullptr;
    QPointer<QGraphicsObject> root_;
    std::optional<CardView> view_;
    QImage picture_;
    int clicks_ = 0;
};

struct Step {
    const char* name;
    void (Life::*run)();
    // An exception passes through Qt to the event loop, as one of the host's callback does.
    bool mayThrow = false;
};

constexpr Step kSteps[] = {
    {"create", &Life::create},       {"read", &Life::read},
    {"build", &Life::build},         {"show", &Life::show},
    {"paint", &Life::paint},         {"click", &Life::click, true},
    {"select", &Life::select, true}, {"change", &Life::change},
    {"free item", &Life::freeItem},  {"free controller", &Life::freeController}};

constexpr std::size_t kStepsToAPicture = 5;

class AllocationFault : public PlixTest, public testing::WithParamInterface<CardRow> {
protected:
    AllocationFault()
    {
        pictures_.write("still.png", pictureBytes(noise({30, 30})));
        pictures_.write("moving.gif", gifAnimation({20, 20}, {1, 2, 3}));
    }

    // Leads a life in which the n-th allocation of this step fails. Returns whether there
    // were that many.
    bool fail(std::span<const Step> steps, const Step& step, int n, Kind kind)
    {
        Life life(json_, pictures_);
        bool hasThrown = false;
        for (const Step& each : steps) {
            if (&each == &step)
                hasThrown = runWithFault(life, step, n, kind);
            else
                (life.*each.run)();
        }
        ignoreLog();
        return hasThrown;
    }

    // Leads a life in which nothing fails. Returns the picture of the card.
    QImage lead(std::span<const Step> steps)
    {
        Life life(json_, pictures_);
        for (const Step& step : steps)
            (life.*step.run)();
        return life.picture();
    }

private:
    bool runWithFault(Life& life, const Step& step, int n, Kind kind)
    {
        bool hasThrown = false;
        bool hasEscaped = false;
        {
            std::optional<LeaksIgnored> ignored;
            if (step.mayThrow)
                ignored.emplace();
            const AllocationFaults faults(n, kind);
            hasEscaped = !CatchExceptions([&] { (life.*step.run)(); });
            hasThrown = faults.hasThrown();
        }
        EXPECT_FALSE(hasEscaped && !step.mayThrow);
        if (step.run == &Life::paint)
            expectWholePaint(life);
        if (step.run == &Life::click)
            expectClick(life);
        return hasThrown;
    }

    // What there was no memory for is there in the next paint.
    void expectWholePaint(Life& life)
    {
        life.paint();
        EXPECT_EQ(life.picture(), picture_);
    }

    static void expectClick(Life& life)
    {
        const int before = life.clicks();
        life.click();
        EXPECT_EQ(life.clicks() > before, life.isClickable());
    }

protected:
    const std::string json_ = bubbleWithBody(box("vertical", GetParam().contents));
    PictureFolder pictures_;
    // Of a card that nothing has happened to.
    QImage picture_;
};

TEST_P(AllocationFault, LeavesAllOtherCardsAsTheyAre)
{
    // Not before the first fault, so that what is made once for all cards fails, too.
    int faults = 0;
    for (const Step& step : kSteps) {
        if (step.run == &Life::show)
            continue;
        for (const Kind kind : {Kind::Single, Kind::Lasting}) {
            SCOPED_TRACE(std::string(step.name) + (kind == Kind::Lasting ? ", lasting" : ""));
            for (int n = 1; fail(kSteps, step, n, kind); ++n) {
                ++faults;
                const QImage next = lead(std::span(kSteps).first(kStepsToAPicture));
                if (picture_.isNull())
                    picture_ = next;
                ASSERT_EQ(next, picture_) << "after the fault " << n;
            }
        }
    }
    RecordProperty("faults", faults);
}

// A card that is read only keeps nothing.
TEST_P(AllocationFault, LeavesNothingBehindWithoutABuild)
{
    static constexpr Step kUnbuilt[] = {
        {"create", &Life::create}, {"read", &Life::read}, {"free", &Life::freeController}};
    lead(kUnbuilt);
    const int before = liveBlocks();
    for (const Step& step : kUnbuilt) {
        for (const Kind kind : {Kind::Single, Kind::Lasting}) {
            SCOPED_TRACE(std::string(step.name) + (kind == Kind::Lasting ? ", lasting" : ""));
            int n = 1;
            while (fail(kUnbuilt, step, n, kind))
                ++n;
            EXPECT_EQ(liveBlocks(), before) << "after " << n << " faults";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cards, AllocationFault,
    testing::Values(
        CardRow {"Text", text("Some words", R"("wrap": true, "weight": "bold",)")},
        CardRow {"Spans", component("text", R"("contents": [{"type": "span", "text": "words "},
            {"type": "span", "text": "red", "color": "#FF0000", "weight": "bold"}],)")},
        CardRow {"Mentions",
                 text(R"(<m user=\"7\">@Ann</m> has <m bot=\"8\">@Bot</m> )"
                      R"(<e code=\"1F600\"/>)")},
        CardRow {"Languages", text("words", R"("i18nTexts": {"en": "English", "ko": "Other"},)")},
        CardRow {"Button", component("button", R"("style": "primary", "action": {"type": "uri",
            "label": "Press", "uri": "https://example.com/a/long/link"},)")},
        CardRow {"Box",
                 box("horizontal", text("words") + "," + component("filler"),
                     R"("borderWidth": "2px", "borderColor": "#FF0000",
                               "cornerRadius": "md", "action": {"type": "message", "label": "a",
                               "text": "b", "i18nTexts": {"en": "c"}},)")},
        CardRow {"Spaces",
                 text("a") + "," + component("separator", R"("margin": "md",)") + ","
                     + component("spacer")},
        CardRow {"Picture",
                 image("still.png", R"("size": "xs", "i18nUrls": {"en": "still.png"},)")},
        CardRow {"Animation", box("baseline", icon("moving.gif") + "," + text("moves"))}),
    RowName());

} // namespace
} // namespace plix::test
