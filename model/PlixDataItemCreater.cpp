#include "model/PlixDataItemCreater.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataButton.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataIcon.h"
#include "model/PlixDataImage.h"
#include "model/PlixDataSeparator.h"
#include "model/PlixDataSpacer.h"
#include "model/PlixDataText.h"

#include <algorithm>
#include <array>
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

struct Creator {
    int kind;
    std::shared_ptr<PlixDataItem> (*create)();
};

constexpr std::array kCreators =
    std::to_array<Creator>({{PlixKindBox, &CreateBox},
                            {PlixKindText, &CreateItem<PlixDataText>},
                            {PlixKindImage, &CreateItem<PlixDataImage>},
                            {PlixKindIcon, &CreateItem<PlixDataIcon>},
                            {PlixKindButton, &CreateItem<PlixDataButton>},
                            {PlixKindSpacer, &CreateItem<PlixDataSpacer>},
                            {PlixKindFiller, &CreateItem<PlixDataFiller>},
                            {PlixKindSeparator, &CreateItem<PlixDataSeparator>}});

} // namespace

std::shared_ptr<PlixDataItem> PlixDataItemCreater::Create(int kind) const
{
    const auto* const creator =
        std::find_if(kCreators.begin(), kCreators.end(),
                     [kind](const Creator& row) { return row.kind == kind; });
    return creator == kCreators.end() ? nullptr : creator->create();
}
