#include "ui/PlixUICreater.h"

#include "model/PlixItemKind.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixBubbleUI.h"
#include "ui/PlixButtonUI.h"
#include "ui/PlixFillerUI.h"
#include "ui/PlixSeparatorUI.h"
#include "ui/PlixSpacerUI.h"
#include "ui/image/PlixIconUI.h"
#include "ui/image/PlixImageUI.h"
#include "ui/text/PlixTextUI.h"

namespace {

template <typename Item>
PlixBaseUI* CreateItem(QGraphicsItem* parentItem, QGraphicsLayoutItem* parentLayout,
                       const PlixDisplayParam&)
{
    return new Item(parentItem, parentLayout);
}

PlixBaseUI* CreateText(QGraphicsItem* parentItem, QGraphicsLayoutItem* parentLayout,
                       const PlixDisplayParam& param)
{
    return new PlixTextUI(parentItem, parentLayout, param);
}

} // namespace

PlixUICreater::PlixUICreater()
    : creators_ {{PlixKindBubble, &CreateItem<PlixBubbleUI>},
                 {PlixKindImage, &CreateItem<PlixImageUI>},
                 {PlixKindBox, &CreateItem<PlixBoxUI>},
                 {PlixKindText, &CreateText},
                 {PlixKindIcon, &CreateItem<PlixIconUI>},
                 {PlixKindButton, &CreateItem<PlixButtonUI>},
                 {PlixKindSpacer, &CreateItem<PlixSpacerUI>},
                 {PlixKindFiller, &CreateItem<PlixFillerUI>},
                 {PlixKindSeparator, &CreateItem<PlixSeparatorUI>}}
{
}

PlixUICreater& PlixUICreater::GetInstance()
{
    static PlixUICreater instance;
    return instance;
}

PlixBaseUI* PlixUICreater::Create(int kind, QGraphicsItem* parentItem,
                                  QGraphicsLayoutItem* parentLayout,
                                  const PlixDisplayParam& param) const
{
    const auto creator = creators_.find(kind);
    return creator == creators_.end() ? nullptr : creator->second(parentItem, parentLayout, param);
}
