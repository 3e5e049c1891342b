#pragma once

#include "model/PlixDataItemCreater.h"
#include "model/PlixJsonValue.h"

#include <plix/Plix.h>

#include <json/value.h>

#include <memory>
#include <string>

class PlixDataBox;
class PlixDataBubble;
class PlixDataContainer;
class PlixDataMgr;

// Reads the JSON of a card message into data items.
//
// Every Parse operation returns 0 on success and -1 if it found something that it
// could not read. It then has logged one line, and what it has read so far stays.
// The caller continues, so an error in one component does not affect the others.
class PlixJsonDataParse {
public:
    // Reads `text` into the bubble of `root`. Returns 0 without reading anything if
    // `text` is not the JSON of a bubble. A text of more than plix::kMaximumMessageBytes
    // fails.
    int Parse(const std::string& text, PlixDataMgr& root);

    int ParseBubble(const Json::Value& node, const std::shared_ptr<PlixDataItem>& item);
    int ParseZone(const PlixJsonMember& zone, const std::shared_ptr<PlixDataContainer>& container);
    // A box that is nested too deeply fails before its "contents" are read.
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

    // Appends the component that `node` describes to `container`. Does nothing if
    // its "type" is unknown. A component that fails is appended, too. Throws for the
    // first item beyond plix::kMaximumItems, and leaves out those that follow.
    void AddComponent(const Json::Value& node, int index, PlixDataContainer& container);

private:
    using ParseOperation = int (PlixJsonDataParse::*)(const Json::Value& node,
                                                      const std::shared_ptr<PlixDataItem>& item);

    // The operation that reads items of a kind; null if there is none.
    static ParseOperation FindOperation(int kind);

    // False for an item that is one too many.
    bool CountItem();

    // The number of boxes that are being read, each inside the one before.
    int nestedBoxes_ = 0;
    // The number of items of the message so far, with those that were left out.
    int items_ = 0;
    PlixDataItemCreater creater_;
};
