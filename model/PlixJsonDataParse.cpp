#include "model/PlixJsonDataParse.h"

#include "api/PlixCatchExceptions.h"
#include "api/PlixDataMgr.h"
#include "api/PlixLog.h"
#include "layout/PlixLimits.h"
#include "model/PlixJsonText.h"
#include "model/format/PlixActionKeys.h"
#include "model/format/PlixBoxKeys.h"
#include "model/format/PlixBubbleKeys.h"
#include "model/format/PlixButtonKeys.h"
#include "model/format/PlixPictureKeys.h"
#include "model/format/PlixSpaceKeys.h"
#include "model/format/PlixTextKeys.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace {

// Runs the body of a Parse operation. An exception is logged and ends only this
// operation.
template <typename Body> int RunOperation(const char* operation, Body body)
{
    const bool isDone = plix::CatchExceptions(body, [operation](const char* reason) {
        plix::LogFailure(std::string("PlixJsonDataParse::") + operation, reason);
    });
    return isDone ? 0 : -1;
}

// The Parse operation of a component that consists of one table.
template <typename Item, const auto& Keys>
int ParseComponent(const char* operation, PlixJsonDataParse& parse, const Json::Value& node,
                   const std::shared_ptr<PlixDataItem>& item)
{
    return RunOperation(operation,
                        [&] { plix::ReadKeys<Keys>(parse, node, dynamic_cast<Item&>(*item)); });
}

// Increments a counter during its lifetime.
class Level {
public:
    explicit Level(int& count)
        : count_(++count)
    {
    }
    ~Level() { --count_; }

    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;

private:
    int& count_;
};

} // namespace

PlixJsonDataParse::ParseOperation PlixJsonDataParse::FindOperation(int kind)
{
    static constexpr std::array kOperations = std::to_array<std::pair<int, ParseOperation>>(
        {{PlixKindImage, &PlixJsonDataParse::ParseImage},
         {PlixKindBox, &PlixJsonDataParse::ParseBox},
         {PlixKindText, &PlixJsonDataParse::ParseText},
         {PlixKindIcon, &PlixJsonDataParse::ParseIcon},
         {PlixKindButton, &PlixJsonDataParse::ParseButton},
         {PlixKindSpacer, &PlixJsonDataParse::ParseSpacer},
         {PlixKindFiller, &PlixJsonDataParse::ParseFiller},
         {PlixKindSeparator, &PlixJsonDataParse::ParseSeparator}});
    const auto* const found = std::find_if(kOperations.begin(), kOperations.end(),
                                           [kind](const auto& row) { return row.first == kind; });
    return found == kOperations.end() ? nullptr : found->second;
}

int PlixJsonDataParse::Parse(const std::string& text, PlixDataMgr& root)
{
    int result = 0;
    const int parsed = RunOperation("Parse", [&] {
        if (text.size() > plix::kMaximumMessageBytes)
            throw std::length_error("The message has more than "
                                    + std::to_string(plix::kMaximumMessageBytes) + " bytes.");
        const Json::Value node = plix::ReadJsonText(text);
        if (plix::TypeWord(node) != "bubble")
            return;
        root.SetMessageType("bubble");
        result = ParseBubble(node, root.GetBubble());
    });
    return parsed == 0 ? result : parsed;
}

int PlixJsonDataParse::ParseBubble(const Json::Value& node,
                                   const std::shared_ptr<PlixDataItem>& item)
{
    return RunOperation("ParseBubble", [&] {
        item->SetIndex(0);
        plix::ReadKeys<plix::kBubbleKeys>(*this, node, dynamic_cast<PlixDataBubble&>(*item));
    });
}

int PlixJsonDataParse::ParseZone(const PlixJsonMember& zone,
                                 const std::shared_ptr<PlixDataContainer>& container)
{
    return RunOperation("ParseZone", [&] {
        const Json::Value& node = plix::RequireObject(zone);
        // Before the component is read: a box that is not added would own itself.
        container->Reserve(container->GetChildren().size() + 1);
        AddComponent(node, 0, *container);
    });
}

void PlixJsonDataParse::AddComponent(const Json::Value& node, int index,
                                     PlixDataContainer& container)
{
    const int kind = plix::ToItemKind(plix::TypeWord(node));
    const ParseOperation operation = FindOperation(kind);
    if (!operation || !CountItem())
        return;
    const std::shared_ptr<PlixDataItem> item = creater_.Create(kind);
    (this->*operation)(node, item);
    item->SetIndex(index);
    container.AddChild(item);
}

bool PlixJsonDataParse::CountItem()
{
    ++items_;
    // Throws only once, so that a card logs one line.
    if (items_ == plix::kMaximumItems + 1)
        throw std::length_error("The card has more than " + std::to_string(plix::kMaximumItems)
                                + " items.");
    return items_ <= plix::kMaximumItems;
}

int PlixJsonDataParse::ParseBox(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item)
{
    return RunOperation("ParseBox", [&] {
        auto& box = dynamic_cast<PlixDataBox&>(*item);
        const Level level(nestedBoxes_);
        plix::ReadKeys<plix::kBoxKeys>(*this, node, box);
        if (nestedBoxes_ > plix::kMaximumNestedBoxes)
            throw std::length_error("Boxes are nested deeper than "
                                    + std::to_string(plix::kMaximumNestedBoxes) + " levels.");
        plix::ReadKeys<plix::kBoxContentsKeys>(*this, node, box);
    });
}

int PlixJsonDataParse::ParseText(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item)
{
    return ParseComponent<PlixDataText, plix::kTextKeys>("ParseText", *this, node, item);
}

int PlixJsonDataParse::ParseImage(const Json::Value& node,
                                  const std::shared_ptr<PlixDataItem>& item)
{
    return ParseComponent<PlixDataImage, plix::kImageKeys>("ParseImage", *this, node, item);
}

int PlixJsonDataParse::ParseIcon(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item)
{
    return ParseComponent<PlixDataIcon, plix::kIconKeys>("ParseIcon", *this, node, item);
}

int PlixJsonDataParse::ParseButton(const Json::Value& node,
                                   const std::shared_ptr<PlixDataItem>& item)
{
    return ParseComponent<PlixDataButton, plix::kButtonKeys>("ParseButton", *this, node, item);
}

int PlixJsonDataParse::ParseSpacer(const Json::Value& node,
                                   const std::shared_ptr<PlixDataItem>& item)
{
    return ParseComponent<PlixDataSpacer, plix::kSpacerKeys>("ParseSpacer", *this, node, item);
}

int PlixJsonDataParse::ParseFiller(const Json::Value& node,
                                   const std::shared_ptr<PlixDataItem>& item)
{
    return ParseComponent<PlixDataFiller, plix::kFillerKeys>("ParseFiller", *this, node, item);
}

int PlixJsonDataParse::ParseSeparator(const Json::Value& node,
                                      const std::shared_ptr<PlixDataItem>& item)
{
    return ParseComponent<PlixDataSeparator, plix::kSeparatorKeys>("ParseSeparator", *this, node,
                                                                   item);
}

int PlixJsonDataParse::ParseAction(const PlixJsonMember& member, ST_ACTION& action)
{
    return RunOperation("ParseAction", [&] {
        plix::ReadKeys<plix::kActionKeys>(*this, plix::RequireObject(member), action);
    });
}

int PlixJsonDataParse::ParseMultiLang(const PlixJsonMember& member, PlixLanguageMap& texts)
{
    return RunOperation("ParseMultiLang", [&] {
        const Json::Value& variants = plix::RequireObject(member);
        for (auto variant = variants.begin(); variant != variants.end(); ++variant) {
            const std::string_view code = plix::MemberName(variant);
            texts.texts[std::string(code)] = plix::ToString({code, *variant});
        }
    });
}
