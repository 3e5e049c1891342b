#include "ui/PlixSeparatorUI.h"

#include "layout/PlixStyleValues.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataSeparator.h"
#include "ui/PlixCardClip.h"
#include "ui/PlixLeadingMargin.h"

#include <QPainter>

namespace {

constexpr double kThickness = 1;
constexpr char kDefaultColor[] = "#1A222222";

} // namespace

PlixSeparatorUI::PlixSeparatorUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
{
}

bool PlixSeparatorUI::Init()
{
    const auto data = FindData<PlixDataSeparator>();
    if (!data)
        return false;
    const bool inColumn = !plix::ParentBox(*data) || plix::IsInVerticalBox(*data);
    if (!data->GetMargin().empty() && data->GetIndex() > 0) {
        plix::SetLeadingMargin(*this, plix::ToLengthPixels(data->GetMargin()), inColumn,
                               plix::IsInRightToLeftBubble(*data));
        setHasMargin(true);
    }
    if (inColumn)
        setHeight(kThickness);
    else
        setWidth(kThickness);
    setColor(data->GetColor().empty() ? kDefaultColor : data->GetColor());
    return true;
}

void PlixSeparatorUI::setColor(const std::string& color)
{
    if (color.empty())
        return;
    color_ = plix::ToColor(color);
    update();
}

void PlixSeparatorUI::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const PlixCardClip clip(*painter, plix::CutByCard(*this, rect()));
    painter->fillRect(rect(), color_.value_or(QColor(Qt::gray)));
}
