#include "ui/PlixButtonUI.h"

#include "api/PlixCatchExceptions.h"
#include "api/PlixDataMgr.h"
#include "api/PlixSettings.h"
#include "layout/PlixKeywordTable.h"
#include "layout/PlixLimits.h"
#include "layout/PlixStyleValues.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataButton.h"
#include "model/format/PlixWords.h"
#include "ui/PlixActionWords.h"
#include "ui/PlixAlignmentWords.h"
#include "ui/PlixButtonLine.h"
#include "ui/PlixCardClip.h"
#include "ui/text/PlixTextFont.h"

#include <kestro_control/TextCut.h>

#include <QCursor>
#include <QFontMetrics>
#include <QGraphicsSceneResizeEvent>
#include <QPainter>

#include <string_view>
#include <utility>

namespace {

constexpr int kDefaultHeight = 52;
constexpr int kPlateRadius = 6;
// Left and right of the label, both sides together.
constexpr int kLabelPadding = 30;

QString WithoutLineBreaks(QString text)
{
    for (QChar& character : text) {
        const bool endsLine = character == QLatin1Char('\n') || character == QLatin1Char('\r')
            || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        if (endsLine)
            character = QLatin1Char(' ');
    }
    return text;
}

} // namespace

PlixButtonUI::PlixButtonUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
{
    clickable_ = true;
    ApplyFontFamily(font_);
}

PlixButtonUI::~PlixButtonUI() = default;

bool PlixButtonUI::Init()
{
    const auto data = FindData<PlixDataButton>();
    if (!data)
        return false;
    actionUnavailable_ = data->IsAppOnlyAction();
    actionSuppressed_ = actionUnavailable_;
    hasOwnAction_ = !actionUnavailable_ && data->GetAction();
    InitLabel(*data);
    InitMouse();
    InitFocus();
    InitLook(*data);
    InitFont(*data);
    const bool isInRow = plix::IsInRow(*data);
    InitSize(*data, isInRow);
    offsets_ = ApplyPlacement(*data, !isInRow);
    const bool isAbsolute = data->HasAbsolutePosition();
    // A button that does not grow in a row would have no width otherwise.
    hasLabelWidth_ = isAbsolute || (isInRow && data->GetGrow() <= 0);
    ApplyLabelWidth();
    return true;
}

void PlixButtonUI::ApplyLabelWidth()
{
    if (hasLabelWidth_)
        setWidth(neededWidth());
}

void PlixButtonUI::InitLabel(const PlixDataButton& data)
{
    std::string text;
    if (actionUnavailable_)
        text = PlixSettings::GetInstance().GetMultiLangText(plix::kCheckOnMobileKey);
    else if (const std::shared_ptr<ST_ACTION> action = data.GetAction())
        text = plix::LabelOf(*action);
    label_ = WithoutLineBreaks(QString::fromStdString(text));
    InitShownPart();
}

void PlixButtonUI::InitShownPart()
{
    shownPart_ = label_.left(plix::kMaximumLabelLength);
    PlixDataMgr* const manager = Manager();
    if (!manager)
        return;
    PlixTextBudget& budget = manager->TextBudget();
    const kestro::TextCut cut = kestro::CutText(shownPart_, budget.Left());
    if (cut.length < shownPart_.size())
        shownPart_ = shownPart_.left(cut.length) + QChar(0x2026);
    budget.Spend(cut.cost, cut.exceedsMaximum);
}

void PlixButtonUI::InitMouse()
{
    if (actionUnavailable_)
        return;
    setCursor(Qt::PointingHandCursor);
    setAcceptHoverEvents(true);
    setAcceptTouchEvents(true);
    setAcceptedMouseButtons(Qt::AllButtons);
}

void PlixButtonUI::InitLook(const PlixDataButton& data)
{
    const std::string style = data.GetStyle();
    const PlixButtonLook look =
        plix::FindKeyword(plix::kButtonLooks, style.empty() ? "link" : std::string_view(style))
            .value_or(PlixButtonLook());
    const auto color = [&](PlixButtonLook::Colored part, const char* fallback) {
        const bool isColored = look.colored == part && !data.GetColor().empty();
        return isColored ? data.GetColor() : std::string(fallback);
    };
    plateColor_ = color(PlixButtonLook::Colored::Plate, look.plate);
    textPen_.setColor(plix::ToColor(color(PlixButtonLook::Colored::Label, look.label)));
}

void PlixButtonUI::InitFont(PlixDataButton& data)
{
    data.SetPixelSize(plix::ToTextPixels(data.GetSize()));
    font_.setWeight(QFont::Bold);
    font_.setPixelSize(data.GetPixelSize());
}

void PlixButtonUI::InitSize(const PlixDataButton& data, bool isInRow)
{
    if (const auto gravity = plix::FindGravity(data.GetGravity()))
        setAlignment(gravity->flag, isInRow);
    setGrowFactor(data.GetGrow());
    setHeight(plix::FindKeyword(plix::kButtonHeights, data.GetHeight()).value_or(kDefaultHeight));
}

void PlixButtonUI::SetClickFunc(const ClickFunc& func)
{
    clickFunc_ = func;
}

void PlixButtonUI::SetFrom(int from)
{
    from_ = from;
}

void PlixButtonUI::FontChanged()
{
    if (!IsUseFontBonding())
        return;
    ApplyFontFamily(font_);
    ApplyLabelWidth();
    line_.reset();
    update();
}

QString PlixButtonUI::shownLabel() const
{
    const QFontMetrics metrics(font_);
    const double available = size().width() - kLabelPadding;
    if (metrics.horizontalAdvance(shownPart_) <= available)
        return shownPart_;
    return metrics.elidedText(shownPart_, Qt::ElideRight, static_cast<int>(available));
}

double PlixButtonUI::neededWidth() const
{
    return QFontMetrics(font_).horizontalAdvance(shownPart_) + kLabelPadding;
}

double PlixButtonUI::CornerRadius() const
{
    return kPlateRadius;
}

void PlixButtonUI::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const PlixCardClip clip(*painter, plix::CutByCard(*this, rect()));
    painter->save();
    // An exception in the middle of a paint would confuse Qt.
    plix::CatchExceptions([&] { PaintPlateAndLabel(*painter); });
    painter->restore();
}

void PlixButtonUI::PaintPlateAndLabel(QPainter& painter)
{
    if (!plateColor_.empty()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(plix::ToColor(plateColor_), Qt::SolidPattern));
        painter.drawRoundedRect(rect(), kPlateRadius, kPlateRadius, Qt::AbsoluteSize);
    }
    painter.setPen(textPen_);
    if (!line_)
        line_ = std::make_unique<PlixButtonLine>(shownLabel(), font_);
    line_->Draw(painter, rect());
}

void PlixButtonUI::resizeEvent(QGraphicsSceneResizeEvent* event)
{
    PlixWidgetUI::resizeEvent(event);
    line_.reset(); // it may have to be elided in another way
}

void PlixButtonUI::setGeometry(const QRectF& rect)
{
    const bool isFirst = std::exchange(geometryPending_, false);
    const YogaLayoutItem* parent = YogaLayoutItem::parentItem();
    if (isFirst && parent)
        offsets_.ResolvePercentages(*this, {parent->layoutWidth(), parent->layoutHeight()});
    // Last, because it tells the host, who may delete the button.
    PlixWidgetUI::setGeometry(rect);
}
