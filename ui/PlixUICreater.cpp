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
PlixBaseUI* CreateUI(QGraphicsItem* parentItem, QGraphicsLayoutItem* parentLayout,
                     const PlixDisplayParam&)
{
    return new Item(parentItem, parentLayout);
}

PlixBaseUI* CreateTextUI(QGraphicsItem* parentItem, QGraphicsLayoutItem* parentLayout,
                         const PlixDisplayParam& param)
{
    return new PlixTextUI(parentItem, parentLayout, param);
}

} // namespace

PlixUICreater::PlixUICreater()
    : creators_ {{PlixKindBubble, &CreateUI<PlixBubbleUI>},
                 {PlixKindImage, &CreateUI<PlixImageUI>},
                 {PlixKindBox, &CreateUI<PlixBoxUI>},
                 {PlixKindText, &CreateTextUI},
                 {PlixKindIcon, &CreateUI<PlixIconUI>},
                 {PlixKindButton, &CreateUI<PlixButtonUI>},
                 {PlixKindSpacer, &CreateUI<PlixSpacerUI>},
                 {PlixKindFiller, &CreateUI<PlixFillerUI>},
                 {PlixKindSeparator, &CreateUI<PlixSeparatorUI>}}
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
