#include "api/PlixDataMgr.h"

#include "api/PlixCatchExceptions.h"
#include "api/PlixLog.h"
#include "layout/PlixLimits.h"
#include "layout/YogaLayoutItem.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDiscardDataTree.h"
#include "model/PlixItemRegistry.h"
#include "model/PlixJsonDataParse.h"
#include "ui/PlixBubbleUI.h"
#include "ui/PlixUICreater.h"
#include "ui/accessibility/PlixAccessibility.h"

#include <QString>
#include <QStringList>

#include <algorithm>

namespace {

constexpr double kFooterInset = 10;
constexpr double kNoInset = -1;

// The available height in the first layout pass. The second pass has no maximum:
// the card becomes as high as it needs.
constexpr double kFirstPassHeight = 500;

} // namespace

PlixDataMgr::Use::Use(PlixDataMgr& manager)
    : manager_(manager)
{
    ++manager_.uses_;
}

PlixDataMgr::Use::~Use()
{
    if (--manager_.uses_ == 0 && manager_.freeAfterUse_)
        delete &manager_;
}

PlixDataMgr::PlixDataMgr()
    : linkTarget_(this)
    , clickFunc_([watch = Watch()](ST_ACTION& action) {
        if (PlixDataMgr* manager = watch.get())
            manager->OnClick(action);
    })
    , downloadFunc_([watch = Watch()](const std::string& url) {
        PlixDataMgr* manager = watch.get();
        return manager ? manager->DownloadFile(url) : std::string();
    })
    , bubble_(std::make_shared<PlixDataBubble>())
{
    bubble_->InitZones();
}

PlixDataMgr::~PlixDataMgr()
{
    // Data that was built stays in the registry, for the graphics items. Other
    // data belongs to the controller only.
    const bool wasBuilt =
        PlixItemRegistry::GetInstance().Find(PlixItemRegistry::KeyOf(bubble_.get())) != nullptr;
    if (!wasBuilt)
        plix::DiscardDataTree(bubble_);
}

void PlixDataMgr::Free()
{
    if (uses_ == 0) {
        delete this;
        return;
    }
    freeAfterUse_ = true;
    linkTarget_.expire();
    SetClickCallBack(nullptr, nullptr);
    SetDownloadCallBack(nullptr, nullptr);
    SetMentionHandleCallback(nullptr, nullptr);
    SetBotMentionHandleCallback(nullptr, nullptr);
}

int PlixDataMgr::InitData(const std::string& json)
{
    return PlixJsonDataParse().Parse(json, *this);
}

QGraphicsItem* PlixDataMgr::GetRootItem() const
{
    return rootItem_.data();
}

void PlixDataMgr::CreateUI()
{
    plix::InstallAccessibility();
    // The host owns the item of an earlier build; this build may fail.
    rootItem_.clear();
    plix::CatchExceptions([this] { Build(); }, &plix::LogFailedBuild);
}

void PlixDataMgr::Build()
{
    sideInset_ = bubble_->GetSizeSpacing();
    bodyBottomInset_ = bubble_->GetFooterSpacing();
    mentionStopsLeft_ = plix::kMaximumMentionStops;
    textBudget_ = PlixTextBudget();
    PlixBaseUI* root = CreateUIItem(bubble_, nullptr, nullptr);
    if (!root)
        return;
    rootItem_ = root->GetGraphicsItem()->toGraphicsObject();
    PlixBubbleUI* bubble = RootBubble();
    if (!bubble)
        return;
    bubble->arrangeZones();
    AttachToRoot(*bubble);
    LayOut();
}

void PlixDataMgr::AttachToRoot(PlixBubbleUI& bubble)
{
    if (!rootLayout_) {
        rootLayout_ = std::make_unique<YogaLayoutItem>(true);
        rootLayout_->setOrientation(Qt::Vertical);
        rootLayout_->addChild(&bubble);
    }
    rootLayout_->setLayoutDirection(Qt::LeftToRight);
    YGUnit unit = YGUnitUndefined;
    rootLayout_->setWidth(bubble.styleWidth(unit));
}

void PlixDataMgr::LayOut()
{
    if (rootLayout_->hasChanged()) {
        YGUnit unit = YGUnitUndefined;
        rootLayout_->startOver();
        rootLayout_->calculateLayout(rootLayout_->styleWidth(unit), kFirstPassHeight);
        rootLayout_->applyLayoutRecursive();
        rootLayout_->calculateLayout();
    }
    rootLayout_->applyLayoutRecursive();
    rootLayout_->forgetChanges();
}

PlixBaseUI* PlixDataMgr::CreateUIItem(const std::shared_ptr<PlixDataItem>& data,
                                      QGraphicsItem* parentItem, QGraphicsLayoutItem* parentLayout)
{
    data->SetAttributes(displayParam_);
    PlixBaseUI* ui = PlixUICreater::GetInstance().Create(data->GetType(), parentItem, parentLayout,
                                                         displayParam_);
    if (!ui)
        return nullptr;
    // Deletes the item if something throws before it is complete.
    std::unique_ptr<QGraphicsItem> unfinished(ui->GetGraphicsItem());
    const qlonglong key = PlixItemRegistry::GetInstance().Add(data);
    ui->GetGraphicsItem()->setData(plix::kDataItemRole, key);
    ui->SetOwner(this);
    ui->SetClickFunc(clickFunc_);
    ui->SetDownloadFunc(downloadFunc_);
    ui->SetFrom(from_);
    ui->Init();

    if (data->GetType() == PlixKindBubble)
        CreateZones(dynamic_cast<const PlixDataBubble&>(*data), *ui);
    else if (data->GetType() == PlixKindBox)
        CreateBoxChildren(*dynamic_cast<const PlixDataBox&>(*data).GetContainer(), *ui);
    static_cast<void>(unfinished.release());
    return ui;
}

PlixBaseUI* PlixDataMgr::CreateChildUI(const std::shared_ptr<PlixDataItem>& data,
                                       PlixBaseUI& parent)
{
    PlixBaseUI* ui = nullptr;
    plix::CatchExceptions(
        [&] { ui = CreateUIItem(data, parent.GetGraphicsItem(), parent.GetChildParentLayout()); },
        &plix::LogFailedBuild);
    return ui;
}

void PlixDataMgr::CreateZones(const PlixDataBubble& bubble, PlixBaseUI& bubbleUI)
{
    CreateZone(*bubble.GetHeader(), bubbleUI, sideInset_, sideInset_);
    CreateZone(*bubble.GetHero(), bubbleUI, kNoInset, kNoInset);
    CreateZone(*bubble.GetBody(), bubbleUI, sideInset_, bodyBottomInset_);
    CreateZone(*bubble.GetFooter(), bubbleUI, kFooterInset, kFooterInset);
}

void PlixDataMgr::CreateZone(const PlixDataContainer& zone, PlixBaseUI& bubbleUI, double insets,
                             double bottomInset)
{
    // The host may read another message from within a callback, which appends to
    // this list: iterators would become invalid. New children are not built here.
    const int count = zone.GetChildCount();
    for (int i = 0; i < count; ++i) {
        PlixBaseUI* ui = CreateChildUI(zone.GetChild(i), bubbleUI);
        if (!ui)
            continue;
        YogaLayoutItem* node = ui->GetYogaItem();
        if (!node->hasPadding())
            node->setPaddings(insets, insets, insets, bottomInset);
        node->applyPaddingToAbsoluteChildren();
        bubbleUI.GetYogaItem()->addChild(node);
    }
}

void PlixDataMgr::CreateBoxChildren(const PlixDataContainer& children, PlixBaseUI& boxUI)
{
    for (const auto& data : children.GetChildren()) {
        if (PlixBaseUI* ui = CreateChildUI(data, boxUI))
            boxUI.GetYogaItem()->addChild(ui->GetYogaItem());
    }
}

int PlixDataMgr::TakeMentionStops(int wanted)
{
    const int taken = std::min(wanted, mentionStopsLeft_);
    mentionStopsLeft_ -= taken;
    return taken;
}

PlixBubbleUI* PlixDataMgr::RootBubble() const
{
    return dynamic_cast<PlixBubbleUI*>(rootItem_.data());
}

int PlixDataMgr::ModifyHeight(int height)
{
    PlixBubbleUI* bubble = RootBubble();
    if (!bubble)
        return 0;
    const int result = bubble->modifyHeight(height);
    if (rootLayout_)
        LayOut();
    return result;
}

void PlixDataMgr::RefreshLayout()
{
    if (!RootBubble() || !rootLayout_)
        return;
    const bool hasChanged = rootLayout_->hasChanged();
    if (hasChanged)
        LayOut();
    // A slot on geometryChanged() may have deleted the item.
    const PlixBubbleUI* bubble = RootBubble();
    if (!bubble)
        return;
    const QSizeF size = bubble->size();
    if (!hasChanged && size == bubble->YogaLayoutItem::geometry().size())
        return;
    rootLayout_->calculateLayout(size.width(), size.height());
    rootLayout_->applyLayoutRecursive();
    rootLayout_->forgetChanges();
}

void PlixDataMgr::SetBubbleBkColor(const std::string& color)
{
    if (PlixBubbleUI* bubble = RootBubble())
        bubble->setBackgroundColor(color);
}

void PlixDataMgr::ResumeBubbleBkColor()
{
    if (PlixBubbleUI* bubble = RootBubble())
        bubble->resumeBackgroundColor();
}

int PlixDataMgr::SetHighLightText(const std::list<std::string>& words)
{
    PlixBubbleUI* bubble = RootBubble();
    if (!bubble)
        return 0;
    QStringList list;
    for (const std::string& word : words)
        list.append(QString::fromStdString(word));
    return bubble->setHighlightText(list);
}

void PlixDataMgr::SetClickCallBack(PlixClickCallback callback, void* userData)
{
    clickCallBack_ = callback;
    clickUserData_ = userData;
}

void PlixDataMgr::SetDownloadCallBack(PlixDownloadCallback callback, void* userData)
{
    downloadCallBack_ = callback;
    downloadUserData_ = userData;
}

void PlixDataMgr::SetMentionHandleCallback(PlixMentionCallback callback, void* userData)
{
    mentionCallBack_ = callback;
    mentionUserData_ = userData;
}

void PlixDataMgr::SetBotMentionHandleCallback(PlixBotMentionCallback callback, void* userData)
{
    botMentionCallBack_ = callback;
    botMentionUserData_ = userData;
}

void PlixDataMgr::OnClick(ST_ACTION& action)
{
    if (clickCallBack_)
        clickCallBack_(this, action, clickUserData_);
}

std::string PlixDataMgr::DownloadFile(const std::string& url)
{
    return downloadCallBack_ ? downloadCallBack_(this, url, downloadUserData_) : std::string();
}

void PlixDataMgr::OnMention(std::int64_t userNo)
{
    if (mentionCallBack_)
        mentionCallBack_(userNo, mentionUserData_);
}

void PlixDataMgr::OnBotMention(std::int64_t userNo)
{
    if (botMentionCallBack_)
        botMentionCallBack_(userNo, botMentionUserData_);
}
