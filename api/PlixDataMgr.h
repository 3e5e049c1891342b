#pragma once

#include "layout/PlixLink.h"

#include <plix/Plix.h>

#include <QGraphicsObject>
#include <QPointer>

#include <cstdint>
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
// above the card, builds the graphics items, and carries events to the host.
//
// The graphics items are the host's. They and this object may go in any order.
class PlixDataMgr : public PlixDataController {
public:
    // Held while a call of the controller runs. Whatever it tells its host
    // meanwhile, the host may answer with Free().
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

    // Deletes the controller: now, or when the last call that uses it ends. In
    // either case the host hears nothing more of it.
    void Free();

    // How those who may outlive the controller refer to it.
    PlixLink<PlixDataMgr> Watch() const { return PlixLink<PlixDataMgr>(self_); }

    int InitData(const std::string& json);
    void CreateUI();
    // The root item of the last build, null before it and once it is deleted.
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

    // Events of the graphics items. Each reads its callback when it happens
    // and does nothing without one.
    void OnClick(ST_ACTION& action);
    std::string DownloadFile(const std::string& url);
    void OnMention(std::int64_t userNo);
    void OnBotMention(std::int64_t userNo);

private:
    void Build();
    // Builds the item of `data` and, below it, of all it holds. Null when its
    // kind is not drawn.
    PlixBaseUI* CreateUIItem(const std::shared_ptr<PlixDataItem>& data, QGraphicsItem* parentItem,
                             QGraphicsLayoutItem* parentLayout);
    // The same below `parent`. What is thrown meanwhile, as by the host when it
    // is asked for a font, costs this item only: null, and a log line.
    PlixBaseUI* CreateChildUI(const std::shared_ptr<PlixDataItem>& data, PlixBaseUI& parent);
    void CreateZones(const PlixDataBubble& bubble, PlixBaseUI& bubbleUI);
    void CreateZone(const PlixDataContainer& zone, PlixBaseUI& bubbleUI, double insets,
                    double bottomInset);
    void CreateBoxChildren(const PlixDataContainer& children, PlixBaseUI& boxUI);
    void AttachToRoot(PlixBubbleUI& bubble);
    // Lays the card out if something has changed, as a new card would be: the
    // change has the effect that it would have had from the start.
    void LayOut();
    PlixBubbleUI* RootBubble() const;

    std::shared_ptr<PlixDataMgr> self_; // owns nothing
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
    PlixMentionCallback mentionCallBack_ = nullptr;
    PlixBotMentionCallback botMentionCallBack_ = nullptr;
    void* mentionUserData_ = nullptr;
    void* botMentionUserData_ = nullptr;
    float dpi_ = 1.0F;
    float sideInset_ = 20.0F;
    float bodyBottomInset_ = 20.0F;
    PlixDisplayParam displayParam_;
};
