#pragma once

#include "api/PlixTextBudget.h"
#include "layout/PlixLink.h"

#include <plix/Plix.h>

#include <QGraphicsObject>
#include <QPointer>

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>

class PlixBaseUI;
class PlixBubbleUI;
class PlixDataBubble;
class PlixDataContainer;
class PlixDataItem;
class QGraphicsLayoutItem;
class YogaLayoutItem;

// The controller of one card message: owns the data items and the layout node
// above the card, builds the graphics items, and passes events to the host.
//
// The host owns the graphics items. They and this object may be deleted in any
// order. GUI thread only.
class PlixDataMgr : public PlixDataController {
public:
    // Keeps the controller alive during a call: the host may call Free() from
    // within a callback.
    class Use {
    public:
        explicit Use(PlixDataMgr& manager);
        ~Use();

        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        PlixDataMgr& manager_;
    };

    PlixDataMgr();
    ~PlixDataMgr() override;

    PlixDataMgr(const PlixDataMgr&) = delete;
    PlixDataMgr& operator=(const PlixDataMgr&) = delete;

    // Deletes the controller, now or when the last call that uses it ends. No
    // callback is called after this.
    void Free();

    // For objects that may outlive the controller: null once it is freed.
    PlixLink<PlixDataMgr> Watch() const { return linkTarget_.link(); }

    // The functions of the exports; Plix.h describes them.
    int InitData(const std::string& json);
    void CreateUI();
    // The root item of the last build. Null before a build, after a failed one,
    // and once the item is deleted.
    QGraphicsItem* GetRootItem() const;

    int ModifyHeight(int height);
    void RefreshLayout();
    void SetBubbleBkColor(const std::string& color);
    void ResumeBubbleBkColor();
    int SetHighLightText(const std::list<std::string>& words);

    void SetClickCallBack(PlixClickCallback callback, void* userData);
    void SetDownloadCallBack(PlixDownloadCallback callback, void* userData);
    void SetMentionHandleCallback(PlixMentionCallback callback, void* userData);
    void SetBotMentionHandleCallback(PlixBotMentionCallback callback, void* userData);
    void SetDisplayParam(const PlixDisplayParam& param) { displayParam_ = param; }
    void SetDpi(float dpi) { dpi_ = dpi; }
    void InitSetFrom(int from) { from_ = from; }

    PlixDisplayParam GetDisplayParam() const { return displayParam_; }
    float GetDpi() const { return dpi_; }
    std::shared_ptr<PlixDataBubble> GetBubble() const { return bubble_; }
    void SetMessageType(const std::string& type) { messageType_ = type; }
    std::string GetMessageType() const { return messageType_; }

    // How many of the `wanted` mentions of a text the Tab key may stop at. A card has a
    // limited number of them (plix::kMaximumMentionStops).
    int TakeMentionStops(int wanted);

    PlixTextBudget& TextBudget() { return textBudget_; }

    // Events of the graphics items. Each calls the callback that is set when the
    // event happens, and does nothing without one.
    void OnClick(ST_ACTION& action);
    std::string DownloadFile(const std::string& url);
    void OnMention(std::int64_t userNo);
    void OnBotMention(std::int64_t userNo);

private:
    void Build();
    // Builds the graphics item of `data`, with the items of its children. Null if
    // its kind is not drawn. `parentItem` owns it; without one, the caller does.
    PlixBaseUI* CreateUIItem(const std::shared_ptr<PlixDataItem>& data, QGraphicsItem* parentItem,
                             QGraphicsLayoutItem* parentLayout);
    // The same below `parent`. If something throws, such as a function of the
    // host, only this item is left out: null, and a log line.
    PlixBaseUI* CreateChildUI(const std::shared_ptr<PlixDataItem>& data, PlixBaseUI& parent);
    void CreateZones(const PlixDataBubble& bubble, PlixBaseUI& bubbleUI);
    void CreateZone(const PlixDataContainer& zone, PlixBaseUI& bubbleUI, double insets,
                    double bottomInset);
    void CreateBoxChildren(const PlixDataContainer& children, PlixBaseUI& boxUI);
    void AttachToRoot(PlixBubbleUI& bubble);
    // If something has changed, lays the card out as if it were new, so that the
    // result does not depend on earlier layouts.
    void LayOut();
    PlixBubbleUI* RootBubble() const;

    PlixLinkTarget<PlixDataMgr> linkTarget_;
    // What items get to reach the host. They may outlive the controller.
    const std::function<void(ST_ACTION&)> clickFunc_;
    const std::function<std::string(const std::string&)> downloadFunc_;
    int uses_ = 0;
    bool freeAfterUse_ = false;
    std::string messageType_;
    std::shared_ptr<PlixDataBubble> bubble_;
    QPointer<QGraphicsObject> rootItem_;
    std::unique_ptr<YogaLayoutItem> rootLayout_;
    PlixClickCallback clickCallBack_ = nullptr;
    PlixDownloadCallback downloadCallBack_ = nullptr;
    void* clickUserData_ = nullptr;
    void* downloadUserData_ = nullptr;
    int from_ = 0;
    int mentionStopsLeft_ = 0;
    PlixTextBudget textBudget_;
    PlixMentionCallback mentionCallBack_ = nullptr;
    PlixBotMentionCallback botMentionCallBack_ = nullptr;
    void* mentionUserData_ = nullptr;
    void* botMentionUserData_ = nullptr;
    float dpi_ = 1.0F;
    float sideInset_ = 20.0F;
    float bodyBottomInset_ = 20.0F;
    PlixDisplayParam displayParam_;
};
