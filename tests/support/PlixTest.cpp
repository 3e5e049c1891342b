#include "support/PlixTest.h"

#include "api/PlixDataMgr.h"
#include "model/PlixDataBubble.h"

namespace plix::test {

PlixTest::PlixTest()
{
    Plix_SetWiteLogCallback(&collectLogLine);
    Plix_SetMultiLangGetCallback(nullptr);
    Plix_SetCurrentLanguage("en");
    Plix_SetKestroControlSupport(nullptr);
}

PlixTest::~PlixTest()
{
    Plix_SetWiteLogCallback(nullptr);
}

TestCard::TestCard(const std::string& json,
                   const std::function<void(PlixDataController*)>& configure)
    : controller_(Plix_CreateController())
{
    if (configure)
        configure(controller_);
    initResult_ = Plix_InitData(controller_, json);
    root_ = Plix_CreateQGraphicsItem(controller_);
}

TestCard::~TestCard()
{
    delete root_;
    Plix_Free(controller_);
}

PlixDataMgr& TestCard::manager() const
{
    return dynamic_cast<PlixDataMgr&>(*controller_);
}

std::shared_ptr<PlixDataBubble> TestCard::bubbleData() const
{
    return manager().GetBubble();
}

QGraphicsItem* TestCard::item(const std::vector<int>& path) const
{
    QGraphicsItem* found = root_;
    for (const int step : path) {
        const QList<QGraphicsItem*> children =
            found ? found->childItems() : QList<QGraphicsItem*>();
        found = children.value(step, nullptr);
    }
    EXPECT_NE(found, nullptr) << "the card has no such item";
    return found;
}

std::string bubbleWithBody(const std::string& body, const std::string& more)
{
    return R"({"type": "bubble", )" + more + R"("body": )" + body + "}";
}

std::string box(const std::string& layout, const std::string& contents, const std::string& more)
{
    return R"({"type": "box", "layout": ")" + layout + R"(", )" + more + R"("contents": [)"
        + contents + "]}";
}

std::string component(const std::string& type, const std::string& more)
{
    return "{" + more + R"("type": ")" + type + R"("})";
}

std::string text(const std::string& words, const std::string& more)
{
    return component("text", R"("text": ")" + words + R"(", )" + more);
}

} // namespace plix::test
