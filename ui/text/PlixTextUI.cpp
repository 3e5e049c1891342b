#include "ui/text/PlixTextUI.h"

#include "api/PlixCurrentLanguage.h"
#include "api/PlixDataMgr.h"
#include "api/PlixSettings.h"
#include "layout/PlixStyleValues.h"
#include "model/PlixActionKind.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataSpan.h"
#include "model/PlixDataText.h"
#include "model/PlixLanguageText.h"
#include "ui/PlixAlignmentWords.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixCardClip.h"
#include "ui/PlixFocusStop.h"
#include "ui/PlixOffsets.h"
#include "ui/PlixSender.h"
#include "ui/text/PlixTextFont.h"
#include "ui/text/PlixTextMarkup.h"

#include <QCursor>
#include <QFontMetrics>
#include <QGraphicsSceneMouseEvent>
#include <QPointer>
#include <QTextCharFormat>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace {

constexpr QColor kOthersColor(0x76, 0x76, 0x76);
constexpr QColor kOwnColor(0x00, 0x87, 0xEE);
// Yoga rounds rectangles outwards to whole pixels, by less than this on each side. A
// text keeps the exact width that it was measured with: in another one, it may break
// into other lines.
constexpr double kRounding = 1;
constexpr char kHighlightColor[] = "#118DFF";

// Whether the box is only as wide as its content. Then it has no free space that
// its texts could share.
bool IsShrinkWrapped(const PlixDataBox& box)
{
    const std::shared_ptr<PlixDataBox> parent = plix::ParentBox(box);
    const bool stretches = !parent || parent->IsVertical();
    const PlixLength width = box.GetWidthLength();
    return !stretches && box.GetGrow() <= 0 && width.px <= 0 && width.percent <= 0;
}

QTextOption::WrapMode ToWrapMode(int value)
{
    const bool known =
        value >= QTextOption::NoWrap && value <= QTextOption::WrapAtWordBoundaryOrAnywhere;
    return known ? static_cast<QTextOption::WrapMode>(value)
                 : QTextOption::WrapAtWordBoundaryOrAnywhere;
}

} // namespace

PlixTextUI::PlixTextUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout,
                       const PlixDisplayParam& param)
    : TextItem(parent, parentLayout)
    , YogaLayoutItem(false)
{
    setGeometryTarget(this);
    setHasMeasureFunc(true);
    SetMarkupEnabled(param.markupEnabled);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(this, &TextItem::MentionClicked, this, &PlixTextUI::OnMentionClicked);
    connect(this, &TextItem::BotMentionClicked, this, &PlixTextUI::OnBotMentionClicked);
}

PlixTextUI::~PlixTextUI()
{
    for (const QPointer<PlixFocusStop>& stop : focusStops_)
        delete stop;
}

bool PlixTextUI::Init()
{
    const auto data = FindData<PlixDataText>();
    if (!data)
        return false;
    InitWrapMode();
    SetElide(true);
    InitColor(*data);
    InitAction(*data);
    InitFont(*data);
    const std::shared_ptr<PlixDataBox> box = plix::ParentBox(*data);
    const Place place = {box, box && !box->IsVertical(), plix::IsInRightToLeftBubble(*data)};
    baseline_ = place.box && place.box->IsBaseline();
    wrap_ = data->GetWrap();
    InitAlignment(*data, place);
    InitGravity(*data, place);
    InsertWithinBudget(*data);
    KeepSides(*data, place);
    InitWidth(*data, place);
    if (data->HasAbsolutePosition())
        shareAbove_ = 0;
    ApplyPlacement(*data, place.box && place.box->IsVertical()).ApplyPercentages(*this);
    setHasBaselineFunc(baseline_);
    InitLines(*data);
    InitFocus();
    return true;
}

void PlixTextUI::InitWrapMode()
{
    const PlixDataMgr* manager = Manager();
    const PlixDisplayParam param = manager ? manager->GetDisplayParam() : PlixDisplayParam();
    SetWrapMode(ToWrapMode(param.wrapMode));
}

void PlixTextUI::InitColor(const PlixDataText& data)
{
    if (!data.GetColor().empty())
        setDefaultTextColor(plix::ToColor(data.GetColor()));
    else
        setDefaultTextColor(colorMode_ == plix::kFromMyself ? kOwnColor : kOthersColor);
}

void PlixTextUI::InitAction(const PlixDataText& data)
{
    if (data.IsAppOnlyAction()) {
        unsupported_ = true;
        setAcceptedMouseButtons(Qt::NoButton);
        setTextInteractionFlags(Qt::NoTextInteraction);
    } else if (!unsupported_ && plix::HasKnownAction(data)) {
        hasOwnAction_ = true;
        setClickable(true);
    }
}

void PlixTextUI::InitFont(PlixDataText& data)
{
    QFont itemFont = font();
    plix::ApplyFontWords(itemFont, data.GetWeight(), data.GetDecoration(), data.GetStyle());
    data.SetPixelSize(plix::ToTextPixels(data.GetSize()));
    itemFont.setPixelSize(data.GetPixelSize());
    setFont(itemFont);
}

void PlixTextUI::InitAlignment(const PlixDataText& data, const Place& place)
{
    const PlixAlignment align = plix::FindAlign(data.GetAlign()).value_or(PlixAlignment());
    if (align.flag != Qt::AlignLeft)
        YogaLayoutItem::setAlignment(align.flag, place.isInRow);
    SetTextAlignment(align.flag);
    if (place.isRightToLeft)
        SetTextDirection(Qt::RightToLeft);
}

void PlixTextUI::InitGravity(const PlixDataText& data, const Place& place)
{
    if (const auto gravity = plix::FindGravity(data.GetGravity())) {
        YogaLayoutItem::setAlignment(gravity->flag, place.isInRow);
        shareAbove_ = gravity->shareBefore;
    }
}

void PlixTextUI::InsertWithinBudget(const PlixDataText& data)
{
    PlixDataMgr* const manager = Manager();
    if (!manager) {
        InsertContent(data);
        return;
    }
    SetMaximumCost(manager->TextBudget().Left());
    InsertContent(data);
    manager->TextBudget().Spend(Cost(), ExceedsMaximumCost());
}

void PlixTextUI::InsertContent(const PlixDataText& data)
{
    if (unsupported_) {
        ClearText();
        InsertText(PlixSettings::GetInstance().GetMultiLangText(plix::kCheckOnMobileKey));
        return;
    }
    if (data.GetSpans().empty())
        InsertText(plix::ChooseText(data.GetTexts(), plix::GetCurrentLanguage(), data.GetText()));
    for (const PlixDataSpan& span : data.GetSpans())
        InsertSpan(span);
}

void PlixTextUI::InsertSpan(const PlixDataSpan& span)
{
    const std::string source =
        plix::ChooseText(span.GetTexts(), plix::GetCurrentLanguage(), span.GetText());
    QFont spanFont = font();
    plix::ApplyFontWords(spanFont, span.GetWeight(), span.GetDecoration(), span.GetStyle());
    if (!span.GetSize().empty())
        spanFont.setPixelSize(plix::ToTextPixels(span.GetSize()));
    QTextCharFormat format;
    format.setFont(spanFont);
    // Without a family of its own, a span has the item's, which follows the host's.
    format.clearProperty(QTextFormat::FontFamily);
    format.clearProperty(QTextFormat::FontFamilies);
    format.setForeground(span.GetColor().empty() ? defaultTextColor()
                                                 : plix::ToColor(span.GetColor()));
    const bool vanishes = !source.empty() && QString::fromStdString(source).isEmpty();
    InsertText(vanishes ? " " : source, &format);
}

void PlixTextUI::InsertText(const std::string& text, const QTextCharFormat* format)
{
    const QString inserted = QString::fromStdString(text);
    InsertRichText(NeedsEscaping(inserted) ? plix::EscapeMarkup(inserted) : inserted, true, format);
}

// In a left-to-right bubble, a paragraph of right-to-left letters starts on the
// right, even if it is short. "end" is the right side for it, too: there the other
// values of a column end.
void PlixTextUI::KeepSides(const PlixDataText& data, const Place& place)
{
    const Qt::AlignmentFlag align = plix::FindAlign(data.GetAlign()).value_or(PlixAlignment()).flag;
    if (align == Qt::AlignHCenter || place.isRightToLeft)
        return;
    const QVector<Qt::LayoutDirection> directions = ParagraphDirections();
    if (align != Qt::AlignRight) {
        if (!place.isInRow && directions.first() == Qt::RightToLeft)
            YogaLayoutItem::setAlignment(Qt::AlignRight, false);
    } else if (directions.contains(Qt::RightToLeft)) {
        SetTextAlignment(TextAlignment() | Qt::AlignAbsolute);
    }
}

bool PlixTextUI::NeedsEscaping(const QString& text) const
{
    const PlixDataMgr* manager = Manager();
    return manager && manager->GetDisplayParam().markupEnabled && !plix::HasMarkup(text);
}

void PlixTextUI::InitWidth(const PlixDataText& data, const Place& place)
{
    const int grow = data.GetGrow();
    if (place.isInRow && grow >= 1 && !data.IsAbsolute() && !IsShrinkWrapped(*place.box)) {
        // No maximum here: if it equals the item's share of the row except for the
        // rounding of floats, Yoga gives the item no width at all.
        setWidth(0);
    } else if (place.box) {
        hasNaturalWidth_ = true;
        setWidth(NaturalWidth());
        setMaxWidthPercent(100);
    } else {
        setWidthPercent(100);
        setWidthIsPercent(true);
        setMaxWidthPercent(100);
    }
    setGrowFactor(grow);
    markDirty();
}

double PlixTextUI::neededWidth() const
{
    return std::ceil(NaturalLines().width);
}

double PlixTextUI::NaturalWidth()
{
    SetMaxLineCount(maxLines_);
    const NaturalSize natural = NaturalLines();
    double width = natural.width;
    if (!wrap_ && natural.lineCount > 1)
        width = std::max(width, NaturalWidthOfFirstLine());
    // Yoga rounds to whole pixels: without the fraction, the last word would not fit.
    return std::ceil(width);
}

// With room for its ellipsis.
double PlixTextUI::NaturalWidthOfFirstLine()
{
    const double shownWidth = textWidth();
    SetFixedItemWidth(-1);
    SetMaxLineCount(1);
    const double width = boundingRect().width();
    SetMaxLineCount(maxLines_);
    SetFixedItemWidth(shownWidth);
    return width;
}

void PlixTextUI::InitLines(const PlixDataText& data)
{
    if (data.GetSpans().empty())
        maxLines_ = std::max(data.GetMaxLines(), 0);
    if (!wrap_)
        maxLines_ = 1;
    SetMaxLineCount(maxLines_);
}

void PlixTextUI::InitFocus()
{
    if (hasOwnAction_)
        focusStops_.emplace_back(
            new PlixFocusStop(*this, std::nullopt, [this] { DeliverClick(); }));
    PlixDataMgr* const manager = Manager();
    if (!manager || clickable_ || unsupported_)
        return;
    const int mentions = manager->TakeMentionStops(MentionCount());
    for (int i = 0; i < mentions; ++i)
        focusStops_.emplace_back(new PlixFocusStop(*this, i, [this, i] { ClickMention(i); }));
}

void PlixTextUI::SetClickFunc(const ClickFunc& func)
{
    clickFunc_ = func;
}

void PlixTextUI::SetFrom(int from)
{
    colorMode_ = from;
}

void PlixTextUI::setClickable(bool on)
{
    if (!on)
        return;
    clickable_ = true;
    setCursor(Qt::PointingHandCursor);
    SetReadOnly(true);
    // The mouse clicks.
    setTextInteractionFlags(textInteractionFlags() & ~Qt::TextSelectableByMouse);
}

void PlixTextUI::OnMentionClicked(qint64 userNo)
{
    ReleaseMouse();
    if (PlixDataMgr* manager = Manager())
        manager->OnMention(userNo);
}

void PlixTextUI::OnBotMentionClicked(qint64 userNo)
{
    ReleaseMouse();
    if (PlixDataMgr* manager = Manager())
        manager->OnBotMention(userNo);
}

void PlixTextUI::OnFontChanged()
{
    FontChanged();
}

void PlixTextUI::FontChanged()
{
    TextItem::FontChanged();
    if (!IsUseFontBonding())
        return;
    if (hasNaturalWidth_)
        setWidth(NaturalWidth());
    LimitLinesToRectangle();
    updateGeometry();
    markDirty();
}

void PlixTextUI::LimitLinesToRectangle()
{
    const double room = layoutHeight() + kRounding;
    const double height = boundingRect().height();
    if (isPlaced() && height > room)
        SetMaxLineCount(std::max(1, static_cast<int>(ShownLineCount() * room / height)));
}

int PlixTextUI::setHighlightText(const QStringList& words)
{
    HighlightText(words, QBrush(plix::ToColor(kHighlightColor), Qt::SolidPattern));
    const QString text = toPlainText();
    const bool isFound = std::any_of(words.begin(), words.end(), [&](const QString& word) {
        return text.indexOf(word, 0, Qt::CaseInsensitive) >= 0;
    });
    return isFound ? 1 : -1;
}

double PlixTextUI::ParentInnerWidth() const
{
    const YogaLayoutItem* parent = YogaLayoutItem::parentItem();
    if (!parent || !parent->isPlaced() || !(parent->layoutWidth() > 0))
        return 0;
    const QMarginsF paddings = parent->layoutPaddings();
    return std::trunc(parent->layoutWidth()) - std::trunc(paddings.left())
        - std::trunc(paddings.right());
}

QSizeF PlixTextUI::measure(double width, YGMeasureMode, double, YGMeasureMode)
{
    if (!isPlaced())
        topOffset_ = 0;
    SetMaxLineCount(maxLines_);
    const double offered = width;
    const double inner = ParentInnerWidth();
    if (inner > 0 && !(width - inner < kRounding))
        width = inner;
    SetFixedItemWidth(width);
    if (std::isnan(width))
        width = boundingRect().width();
    if (wrap_) {
        if (width != offered && !HasStyleWidth(width))
            changeWidthOnRelayout(width);
        if (width == 0)
            setPlainText(QString());
    }
    return {width, std::trunc(boundingRect().height())};
}

bool PlixTextUI::HasStyleWidth(double width) const
{
    YGUnit unit = YGUnitUndefined;
    return styleWidth(unit) == static_cast<float>(width) && unit == YGUnitPoint;
}

float PlixTextUI::baseline(double, double)
{
    // Of the first line, which taller glyphs than the font's own move down.
    return static_cast<float>(std::trunc(topOffset_ + FirstLineAscent()));
}

QSizeF PlixTextUI::sizeHint(Qt::SizeHint which, const QSizeF&) const
{
    const bool known =
        which == Qt::MinimumSize || which == Qt::PreferredSize || which == Qt::MaximumSize;
    return {-1, known ? boundingRect().height() : -1};
}

QRectF PlixTextUI::ClippedToParent(const QRectF& rect) const
{
    const YogaLayoutItem* parent = YogaLayoutItem::parentItem();
    if (!parent)
        return rect;
    const QRectF content =
        QRectF(QPointF(0, 0), parent->geometry().size()) - parent->layoutPaddings();
    return content.intersected(rect);
}

void PlixTextUI::setGeometry(const QRectF& rect)
{
    // Only a text at the top of a zone has paddings.
    const QRectF given =
        rect.adjusted(YogaLayoutItem::paddingLeft(), YogaLayoutItem::paddingTop(),
                      -YogaLayoutItem::paddingRight(), -YogaLayoutItem::paddingBottom());
    const int lineHeight = QFontMetrics(font()).height();
    const double missing = std::max(0.0, lineHeight - given.height());
    const QRectF clipped = ClippedToParent(given).adjusted(0, -missing * 0.5, 0, 0);
    topOffset_ = -missing * 0.5;

    SetMaxLineCount(maxLines_);
    const double shown = boundingRect().width();
    if (shown > given.width()) {
        SetFixedItemWidth(clipped.width());
        if (!HasStyleWidth(clipped.width()))
            changeWidth(clipped.width());
    } else if (given.width() - shown >= 2 * kRounding) {
        // The last measurement was for another width, or, if the size is fixed,
        // there was none.
        SetFixedItemWidth(clipped.width());
    } else {
        SetFixedItemWidth(shown);
    }
    PlaceVertically(given.height(), lineHeight);
    // Not TextItem's, which would move the item to the rectangle's corner.
    QGraphicsLayoutItem::setGeometry(rect); // NOLINT(bugprone-parent-virtual-call)

    YogaLayoutItem* parent = YogaLayoutItem::parentItem();
    if (parent && parent->isRelayoutPending() && FindData<PlixDataText>()) {
        markDirty();
        parent->relayoutInPlace();
    }
    // Last, because these tell the host, who may delete the text.
    const QPointF position(given.left(), given.top() + topOffset_);
    const PlixLink<YogaLayoutItem> self = watch();
    PlaceFocusStops(position);
    if (self.get())
        setPos(position);
}

void PlixTextUI::PlaceFocusStops(const QPointF& position)
{
    std::vector<std::pair<QPointer<PlixFocusStop>, QRectF>> places;
    for (std::size_t i = 0; i < focusStops_.size(); ++i) {
        QRectF rect;
        if (hasOwnAction_)
            rect = boundingRect();
        else if (!clickable_) // by the box around it
            rect = MentionRect(static_cast<int>(i));
        places.emplace_back(focusStops_[i], rect.translated(position));
    }
    for (const auto& [stop, rect] : places) {
        if (stop)
            stop->Place(rect);
    }
}

void PlixTextUI::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    const PlixCardClip clip(*painter, CutByCard());
    TextItem::paint(painter, option, widget);
}

std::optional<PlixCardCut> PlixTextUI::CutByCard() const
{
    // Glyphs may be higher than their line, but not twice as high. Only near the
    // outline, it is worth the time to look at each of them.
    const double overhang = 2 * FirstLineAscent();
    const QRectF around = boundingRect().adjusted(0, -overhang, kRounding, overhang);
    const std::optional<PlixCardCut> cut = plix::CutByCard(*this, around);
    return cut ? plix::CutByCard(*this, InkRect()) : cut;
}

void PlixTextUI::PlaceVertically(double available, int lineHeight)
{
    textHeight_ = std::max(static_cast<int>(boundingRect().height()), lineHeight);
    if (baseline_ || available <= textHeight_) {
        SetFrame(0, 0);
        return;
    }
    SetFrame(available, (available - textHeight_) * shareAbove_);
}

void PlixTextUI::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    // A text that is clickable because its box is has no action of its own: it
    // leaves the press to the box.
    if (clickable_)
        HandlePress(*event);
    else
        TextItem::mousePressEvent(event);
}

void PlixTextUI::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    // Qt sends this instead of the second press of a double click.
    if (clickable_)
        mousePressEvent(event);
    else
        TextItem::mouseDoubleClickEvent(event);
}

void PlixTextUI::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (unsupported_)
        return;
    if (clickable_) {
        HandleRelease(*event);
        return;
    }
    const QPointer<PlixTextUI> self(this); // the host may delete it on a mention
    TextItem::mouseReleaseEvent(event);
    if (!self)
        return;
    if (auto* box = dynamic_cast<PlixBoxUI*>(YogaLayoutItem::parentItem()))
        box->HandleReleaseInside(event);
}
