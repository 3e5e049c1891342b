#include "ui/image/PlixIconUI.h"

#include "api/PlixCurrentLanguage.h"
#include "layout/PlixStyleValues.h"
#include "model/PlixDataIcon.h"
#include "model/PlixLanguageText.h"
#include "ui/text/PlixTextFont.h"

PlixIconUI::PlixIconUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixPictureUI(parent, parentLayout)
{
}

bool PlixIconUI::Init()
{
    const auto data = FindData<PlixDataIcon>();
    if (!data)
        return false;
    setAcceptedMouseButtons(Qt::NoButton);
    Download(plix::ChooseText(data->GetUrls(), plix::GetCurrentLanguage(), data->GetUrl()));
    data->SetPixelSize(plix::ToTextPixels(data->GetSize()));
    // Width and height rather than one of them and the ratio: an icon that grows in
    // a row must not make the row higher.
    const double ratio = plix::ToAspectRatio(data->GetAspectRatio());
    const double width = data->GetPixelSize() * ratio;
    setHeight(data->GetPixelSize());
    setWidth(width);
    SetFixedWidth(width);
    InitCommon(*data);
    return true;
}
