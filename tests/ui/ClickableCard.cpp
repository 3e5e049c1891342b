#include "ClickableCard.h"

#include "ClickHost.h"

#include "support/PlixTest.h"

namespace plix::test {

const std::vector<std::string> kClickableParts = {"box",   "text",   "image", "user 7",
                                                  "bot 8", "around", "button"};

std::string cardOfColumn(const std::vector<std::string>& items, const std::string& more)
{
    std::string all;
    for (const std::string& item : items)
        all += (all.empty() ? "" : ",") + item;
    return bubbleWithBody(box("vertical", all, more));
}

std::string mention(const char* who)
{
    return "<m " + std::string(who) + R"(>@Ann Lee</m>)";
}

std::string cardOfAllKinds()
{
    return cardOfColumn({text("plain"),
                         box("vertical", text("inside"), kSmallSize + uriAction("box")),
                         box("horizontal",
                             text("no ") + ',' + text("words", uriAction("text")) + ','
                                 + component("image", R"("size": "xxs",)" + uriAction("image"))),
                         text("To " + mention(R"(user=\"7\")") + " and " + mention(R"(bot=\"8\")")),
                         text("app", appAction("app://a")), button(appAction("app://b")),
                         button(""), text("odd", uriAction("its", "dance")),
                         box("vertical", text(mention(R"(user=\"9\")")), uriAction("around")),
                         button(uriAction("button"))});
}

} // namespace plix::test
