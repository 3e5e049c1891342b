#include "ui/PlixBaseUI.h"

#include "layout/PlixStyleValues.h"
#include "layout/YogaLayoutItem.h"
#include "model/PlixDataItemCommon.h"
#include "model/PlixDataTree.h"
#include "ui/PlixLeadingMargin.h"

#include <QGraphicsItem>
#include <QVariant>

namespace {

// One offset: where its text is, and how the node takes it.
struct Offset {
    std::string (PlixDataItemCommon::*text)() const;
    void (YogaLayoutItem::*setPixels)(double);
    void (YogaLayoutItem::*setPercent)(double);
};

constexpr Offset kOffsets[] = {
    {&PlixDataItemCommon::GetOffsetTop, &YogaLayoutItem::setPositionTop,
     &YogaLayoutItem::setPositionTopPercent},
    {&PlixDataItemCommon::GetOffsetBottom, &YogaLayoutItem::setPositionBottom,
     &YogaLayoutItem::setPositionBottomPercent},
    {&PlixDataItemCommon::GetOffsetStart, &YogaLayoutItem::setPositionStart,
     &YogaLayoutItem::setPositionStartPercent},
    {&PlixDataItemCommon::GetOffsetEnd, &YogaLayoutItem::setPositionEnd,
     &YogaLayoutItem::setPositionEndPercent},
};

void ApplyOffset(const Offset& offset, const PlixDataItemCommon& data, YogaLayoutItem& node)
{
    PlixLength length;
    ParseLength((data.*offset.text)(), length);
    if (length.px > 0)
        (node.*offset.setPixels)(static_cast<double>(length.px));
    else if (length.percent > 0)
        (node.*offset.setPercent)(static_cast<double>(length.percent));
}

} // namespace

PlixBaseUI::~PlixBaseUI() = default;

QGraphicsLayoutItem* PlixBaseUI::GetChildParentLayout()
{
    return nullptr;
}

bool PlixBaseUI::Init()
{
    return true;
}

void PlixBaseUI::SetClickFunc(const ClickFunc&) { }

void PlixBaseUI::SetDownloadFunc(const DownloadFunc&) { }

void PlixBaseUI::SetFrom(int) { }

bool PlixBaseUI::HasAction()
{
    if (!dynamic_cast<QGraphicsItem*>(this))
        return false;
    if (actionSuppressed_ || !clickable_ || !clickFunc_)
        return false;
    const std::shared_ptr<PlixDataItem> data = FindDataItem();
    return data && data->GetAction();
}

std::shared_ptr<PlixDataItem> PlixBaseUI::FindDataItem()
{
    const qlonglong key = GetGraphicsItem()->data(kDataItemRole).toLongLong();
    return PlixItemRegistry::GetInstance().Find(key);
}

void PlixBaseUI::ApplyPlacement(bool parentIsVertical)
{
    const auto data = FindData<PlixDataItemCommon>();
    if (!data)
        return;
    YogaLayoutItem& node = *GetYogaItem();
    if (!data->GetMargin().empty() && data->GetIndex() > 0) {
        const int margin = ToLengthPixels(data->GetMargin());
        SetLeadingMargin(node, margin, parentIsVertical, IsInRightToLeftBubble(*data));
        node.setHasMargin(true);
    }
    if (data->GetPosition() == "absolute")
        node.setAbsolute(true);
    for (const Offset& offset : kOffsets)
        ApplyOffset(offset, *data, node);
}

void PlixBaseUI::DeliverClick()
{
    const std::shared_ptr<PlixDataItem> data = FindDataItem();
    const std::shared_ptr<ST_ACTION> record = data ? data->GetAction() : nullptr;
    if (!record || !clickFunc_)
        return;
    const ClickFunc click = clickFunc_;
    ST_ACTION action = *record;
    click(action);
}
