#pragma once

#include "model/PlixDataItemCreater.h"
#include "model/PlixJsonValue.h"

#include <map>
#include <memory>
#include <string>

class PlixDataBox;
class PlixDataBubble;
class PlixDataContainer;
class PlixDataMgr;

// Reads the JSON of a card message into data items.
//
// Every Parse operation returns 0 when it ran to its end and -1 when it met
// something it could not read. It then has logged one line about it, and what
// it had read until then stays; its caller carries on, so a bad piece costs
// that piece only.
class PlixJsonDataParse {
public:
    // So many boxes may be nested in a zone. What a layout costs grows with
    // their depth, and people write cards of fewer than ten levels.
    static constexpr int kMaxNestedBoxes = 24;

    PlixJsonDataParse();

    // Fills the bubble of `root`. A text that is not the JSON of a bubble is
    // no failure: nothing is read.
    int Parse(const std::string& text, PlixDataMgr& root);

    int ParseBubble(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseZone(const PlixJsonMember& zone, const std::shared_ptr<PlixDataContainer>& container);
    // A box that is nested too deeply fails before its "contents".
    int ParseBox(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseText(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseImage(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseIcon(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseButton(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseSpacer(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseFiller(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseSeparator(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseAction(const PlixJsonMember& member, ST_ACTION& action);
    int ParseMultiLang(const PlixJsonMember& member, PlixLanguageMap& texts);

    // Appends the component that `node` describes to `container`, unless its
    // "type" names none. What is wrong inside it is its own affair.
    void AddComponent(const Json::Value& node, int index, PlixDataContainer& container);

private:
    using ParseOperation = int (PlixJsonDataParse::*)(const Json::Value& node,
                                                      const std::shared_ptr<PlixDataItem>& item);

    // How many boxes are being read, each in the one before it.
    int nestedBoxes_ = 0;
    std::map<int, ParseOperation> parseTable_;
    std::shared_ptr<PlixDataItemCreater> creater_;
};
