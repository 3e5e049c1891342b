#include "model/PlixDataItemCreater.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataButton.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataIcon.h"
#include "model/PlixDataImage.h"
#include "model/PlixDataSeparator.h"
#include "model/PlixDataSpacer.h"
#include "model/PlixDataText.h"

#include <utility>

namespace {

template <typename Item> std::shared_ptr<PlixDataItem> CreateItem()
{
    return std::make_shared<Item>();
}

std::shared_ptr<PlixDataItem> CreateBox()
{
    auto box = std::make_shared<PlixDataBox>();
    auto container = std::make_shared<PlixDataContainer>();
    container->SetOwner(box);
    box->SetContainer(std::move(container));
    return box;
}

} // namespace

PlixDataItemCreater::PlixDataItemCreater()
    : creators_ {{PlixKindBox, &CreateBox},
                 {PlixKindText, &CreateItem<PlixDataText>},
                 {PlixKindImage, &CreateItem<PlixDataImage>},
                 {PlixKindIcon, &CreateItem<PlixDataIcon>},
                 {PlixKindButton, &CreateItem<PlixDataButton>},
                 {PlixKindSpacer, &CreateItem<PlixDataSpacer>},
                 {PlixKindFiller, &CreateItem<PlixDataFiller>},
                 {PlixKindSeparator, &CreateItem<PlixDataSeparator>}}
{
}

std::shared_ptr<PlixDataItem> PlixDataItemCreater::Create(int kind) const
{
    const auto creator = creators_.find(kind);
    return creator == creators_.end() ? nullptr : creator->second();
}
