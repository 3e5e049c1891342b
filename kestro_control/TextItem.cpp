#include "kestro_control/TextItem.h"

#include "ClipPath.h"
#include "DisplayBudget.h"
#include "EmojiPicture.h"
#include "HighlightWords.h"
#include "InteractiveText.h"
#include "ItemSelection.h"
#include "ItemText.h"
#include "MarkupReader.h"
#include "MentionAreas.h"
#include "MentionName.h"
#include "ParagraphText.h"
#include "SharedFont.h"
#include "ShownLines.h"
#include "TextChangeUpdate.h"
#include "TextCharacters.h"
#include "TextHitTest.h"
#include "TextInteraction.h"
#include "TextMenu.h"

#include "kestro_control/AccessibilityUpdates.h"
#include "kestro_control/KestroControlManager.h"
#include "kestro_control/KestroControlSupport.h"

#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneHoverEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStyleOptionGraphicsItem>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

using kestro::CharacterRange;
using kestro::DisplayBudget;
using kestro::EmojiPicture;
using kestro::HighlightWords;
using kestro::ItemSelection;
using kestro::ItemText;
using kestro::MarkupRun;
using kestro::Mention;
using kestro::MentionAreas;
using kestro::SelectionLook;
using kestro::ShownLine;
using kestro::ShownLines;
using kestro::ShownMention;
using kestro::ShownText;
using kestro::TextCharacters;
using kestro::TextHitTest;
using kestro::TextInteraction;

namespace {

// Lengths beyond 2^23 overflow the text engine's fixed-point numbers; this leaves
// room for sums.
constexpr qreal kMaximumWidth = 1 << 20;

constexpr qreal kNaturalWidth = -1;

const QColor kDefaultMentionColor(0x11, 0x8D, 0xFF);

qreal FixedWidth(qreal width)
{
    if (!std::isfinite(width) || width < 0)
        return kNaturalWidth;
    return std::min(width, kMaximumWidth);
}

// An item of width 0 shows nothing, but has the height of its natural width.
qreal DocumentWidth(qreal width)
{
    return width == 0 ? kNaturalWidth : width;
}

TextItem::NaturalSize NaturalSizeOf(const ShownLines& lines)
{
    return {lines.BoundingRect().width(), lines.Count()};
}

// The same for lines that need no ellipsis, in less time. The text must have no width.
TextItem::NaturalSize NaturalSizeOf(const kestro::LaidOutText& text)
{
    TextItem::NaturalSize size {0, 0};
    const int count = text.IsEmpty() ? 0 : text.ParagraphCount();
    for (int i = 0; i < count; ++i) {
        const QTextLayout* const layout = text.Paragraph(i).layout;
        for (int line = 0; line < layout->lineCount(); ++line, ++size.lineCount)
            size.width = std::max(size.width, layout->lineAt(line).naturalTextRect().width());
    }
    return size;
}

// What is between the left and right edges of an item, rounded out to whole pixels.
QRectF BetweenSides(const QRectF& item)
{
    return QRectF(0, item.top() - ShownLine::kMaximumOverhang, std::ceil(item.width()),
                  item.height() + 2 * ShownLine::kMaximumOverhang);
}

void ClipSides(QPainter& painter, const QRectF& item)
{
    const QRectF sides = BetweenSides(item);
    if (kestro::HasSidesBetweenPixels(painter, sides)) {
        // A rectangle is much cheaper than a path, and shows the same pixels here.
        painter.setClipRect(sides, Qt::IntersectClip);
        return;
    }
    QPainterPath path;
    kestro::AddClipRectangle(path, sides);
    painter.setClipPath(path, Qt::IntersectClip);
}

bool IsWrapMode(QTextOption::WrapMode mode)
{
    switch (mode) {
    case QTextOption::NoWrap:
    case QTextOption::WordWrap:
    case QTextOption::ManualWrap:
    case QTextOption::WrapAnywhere:
    case QTextOption::WrapAtWordBoundaryOrAnywhere:
        return true;
    }
    return false;
}

} // namespace

// Owns the text and computes what is shown of it: ShownLines has the lines,
// MentionAreas the places that can be clicked. Both are made when they are needed
// and dropped by Invalidate().
class TextItem::Private : public kestro::InteractiveText {
public:
    explicit Private(TextItem& textItem);

    // Inserts what the display limit allows, and keeps the rest as hidden text.
    void Insert(const MarkupRun& run, const QTextCharFormat& format);

    // `newText` has no format.
    void ReplaceText(const QString& newText);

    QTextDocument& Document();

    // Whether all of `inserted` can be inserted without exceeding the display limit.
    bool IsWithinDisplayLimit(const QString& inserted) const;

    void UseApplicationFontFamily();

    // The shown lines. The first call after a change lays them out.
    const ShownLines& Shown();

    // The same, with highlights.
    const ShownLines& ShownHighlighted();

    NaturalSize NaturalLines();

    // Whether text would be drawn outside of the left and right edges.
    bool NeedsSideClip();

    TextCharacters Characters() { return TextCharacters(text.LaidOut()); }
    TextHitTest HitTest() { return {text.LaidOut(), Shown()}; }

    // Null for another index.
    const ShownMention* MentionNumber(int index);

    // Makes it when it is needed for the first time.
    TextInteraction& Interaction();
    // Null until somebody selects.
    ItemSelection* Selection() const;
    bool IsSelectable() const;
    // How the selection looks in a view.
    SelectionLook LookOfSelection(const QWidget* viewport);
    void UpdateHoverEvents();
    void EndHover();
    // To be called when the text changes.
    void ForgetSelection();

    // ----- InteractiveText
    Qt::TextInteractionFlags InteractionFlags() const override { return interactionFlags; }
    ShownText Current() override;
    QString PlainText() override;
    std::optional<Mention> MentionAt(const QPointF& point) override;
    void Click(const Mention& mention) override;

    // To be called before a change of what is shown, or after one in the document.
    void Invalidate();

    ItemText text;
    QColor textColor = QGuiApplication::palette().color(QPalette::Text);
    QColor mentionColor = kDefaultMentionColor;
    int maxLineCount = 0;
    bool elide = false;
    bool hasZeroWidth = false;
    bool readOnly = true;
    bool markupEnabled = false;
    int mentionCount = 0;
    DisplayBudget budget;
    HighlightWords highlightWords;
    QBrush highlightBrush;
    bool isHighlightValid = true;
    Qt::TextInteractionFlags interactionFlags = Qt::NoTextInteraction;

private:
    void InsertText(const QString& inserted, const QTextCharFormat& format);
    void InsertMention(const MarkupRun& run, QTextCharFormat format);
    void InsertEmoji(const MarkupRun& run, const QTextCharFormat& format);
    void InsertPicture(const MarkupRun& run, const QTextCharFormat& format, const QImage& picture);
    void AddHiddenText(const QString& hidden);
    // The mentions of a read-only item; there are none in an editable one.
    const MentionAreas& Areas();

    TextItem& item_;
    ShownLines shown_;
    bool isShownValid_ = false;
    std::optional<bool> needsSideClip_;
    std::optional<MentionAreas> mentions_;

    // The text beyond the display limit.
    QString hiddenText_;
    bool hasPictures_ = false;
    int lastMentionId_ = 0;

    // Null until the mouse is on the item, or somebody selects.
    std::unique_ptr<TextInteraction> interaction_;
};

TextItem::Private::Private(TextItem& textItem)
    : text(textItem, [this] { Invalidate(); })
    , item_(textItem)
{
}

void TextItem::Private::Insert(const MarkupRun& run, const QTextCharFormat& format)
{
    switch (run.kind) {
    case MarkupRun::Kind::Text:
        InsertText(run.text, format);
        break;
    case MarkupRun::Kind::UserMention:
    case MarkupRun::Kind::BotMention:
        InsertMention(run, format);
        break;
    case MarkupRun::Kind::Emoji:
        InsertEmoji(run, format);
        break;
    }
}

void TextItem::Private::InsertText(const QString& inserted, const QTextCharFormat& format)
{
    if (inserted.isEmpty())
        return;
    const int shown = hiddenText_.isEmpty() ? budget.Spend(inserted) : 0;
    if (shown > 0)
        text.Insert(inserted.left(shown), format);
    if (shown < inserted.size())
        AddHiddenText(inserted.mid(shown));
}

void TextItem::Private::InsertMention(const MarkupRun& run, QTextCharFormat format)
{
    const bool isBot = run.kind == MarkupRun::Kind::BotMention;
    Mention {isBot, run.number, ++lastMentionId_}.WriteTo(format);
    format.setForeground(mentionColor);
    const QString name = kestro::WithoutDirections(run.text);
    // At the start, it is the name that sets the direction of the paragraph.
    InsertText(text.IsEmpty() ? name : kestro::Isolated(name), format);
    ++mentionCount;
    UpdateHoverEvents();
}

void TextItem::Private::InsertEmoji(const MarkupRun& run, const QTextCharFormat& format)
{
    const KestroControlSupport* support =
        KestroControlManager::GetInstance()->GetKestroControlSupport();
    const QImage picture = support ? support->GetEmojiImage(run.emojiCode) : QImage();
    const QString object(QChar::ObjectReplacementCharacter);
    if (picture.isNull())
        InsertText(run.text, format);
    else if (!hiddenText_.isEmpty() || budget.Spend(object) == 0)
        AddHiddenText(run.text);
    else
        InsertPicture(run, format, picture);
}

void TextItem::Private::InsertPicture(const MarkupRun& run, const QTextCharFormat& format,
                                      const QImage& picture)
{
    EmojiPicture::Insert(text.InsertionCursor(), format, run.text, picture);
    hasPictures_ = true;
}

void TextItem::Private::AddHiddenText(const QString& hidden)
{
    hiddenText_ += kestro::AsPlainText(hidden);
}

void TextItem::Private::ReplaceText(const QString& newText)
{
    ForgetSelection();
    budget = DisplayBudget(budget.Maximum());
    hiddenText_.clear();
    hasPictures_ = false;
    mentionCount = 0;
    UpdateHoverEvents();

    text.BeginInsertion(true);
    text.Clear();
    InsertText(newText, QTextCharFormat());
    text.EndInsertion();
}

QString TextItem::Private::PlainText()
{
    return (hasPictures_ ? kestro::PlainTextOf(text.Document()) : text.PlainText()) + hiddenText_;
}

QTextDocument& TextItem::Private::Document()
{
    const bool isNew = !text.HasDocument();
    QTextDocument& document = text.Document();
    if (isNew && isShownValid_) {
        // The same lines, from their new place. If they were not valid any more, the
        // next change would not be announced.
        isShownValid_ = false;
        mentions_.reset();
        Shown();
    }
    return document;
}

bool TextItem::Private::IsWithinDisplayLimit(const QString& inserted) const
{
    return hiddenText_.isEmpty() && DisplayBudget(budget).Spend(inserted) == inserted.size();
}

void TextItem::Private::UseApplicationFontFamily()
{
    QFont font = item_.font();
    if (ApplyFontFamily(font))
        item_.setFont(font);
}

const ShownLines& TextItem::Private::Shown()
{
    if (!isShownValid_) {
        const kestro::LaidOutText& laidOut = text.LaidOut();
        shown_ = readOnly ? ShownLines(laidOut, maxLineCount, elide, !hiddenText_.isEmpty())
                          : ShownLines(laidOut, 0, false, false);
        isShownValid_ = true;
        isHighlightValid = highlightWords.IsEmpty();
    }
    return shown_;
}

TextItem::NaturalSize TextItem::Private::NaturalLines()
{
    const qreal width = text.Width();
    if (width >= 0)
        text.SetWidth(kNaturalWidth);
    const kestro::LaidOutText& laidOut = text.LaidOut();
    const NaturalSize size = hiddenText_.isEmpty()
        ? NaturalSizeOf(laidOut)
        : NaturalSizeOf(ShownLines(laidOut, 0, elide, true));
    if (width >= 0)
        text.SetWidth(width);
    return size;
}

const ShownLines& TextItem::Private::ShownHighlighted()
{
    Shown();
    if (!isHighlightValid) {
        shown_.Highlight(text.LaidOut(), highlightWords);
        isHighlightValid = true;
    }
    return shown_;
}

// Clipping takes time, and few texts need it.
bool TextItem::Private::NeedsSideClip()
{
    if (!needsSideClip_)
        needsSideClip_ = Shown().HasInkOutside(std::ceil(item_.boundingRect().width()));
    return *needsSideClip_;
}

const MentionAreas& TextItem::Private::Areas()
{
    const ShownLines& shown = Shown();
    if (!mentions_)
        mentions_.emplace(mentionCount > 0 && readOnly ? MentionAreas(text.LaidOut(), shown)
                                                       : MentionAreas());
    return *mentions_;
}

const ShownMention* TextItem::Private::MentionNumber(int index)
{
    const std::vector<ShownMention>& all = Areas().All();
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < all.size() ? &all[place] : nullptr;
}

std::optional<Mention> TextItem::Private::MentionAt(const QPointF& point)
{
    return Areas().At(point);
}

void TextItem::Private::Click(const Mention& mention)
{
    const qint64 userNo = mention.userNo;
    if (mention.isBot)
        Q_EMIT item_.BotMentionClicked(userNo);
    else
        Q_EMIT item_.MentionClicked(userNo);
}

TextInteraction& TextItem::Private::Interaction()
{
    if (!interaction_)
        interaction_ = std::make_unique<TextInteraction>(item_, *this);
    return *interaction_;
}

ItemSelection* TextItem::Private::Selection() const
{
    return interaction_ ? interaction_->Selection() : nullptr;
}

bool TextItem::Private::IsSelectable() const
{
    return readOnly && interactionFlags.testFlag(Qt::TextSelectableByMouse);
}

SelectionLook TextItem::Private::LookOfSelection(const QWidget* viewport)
{
    const ItemSelection* const selection = Selection();
    if (!selection || selection->IsEmpty())
        return {};
    const QPalette::ColorGroup group =
        selection->HasFocus(viewport) ? QPalette::Active : QPalette::Inactive;
    const QPalette palette = viewport ? viewport->palette() : QGuiApplication::palette();
    return {Shown().IntervalsOf(text.LaidOut(), selection->Range()),
            palette.brush(group, QPalette::Highlight),
            palette.color(group, QPalette::HighlightedText)};
}

void TextItem::Private::UpdateHoverEvents()
{
    item_.setAcceptHoverEvents(!readOnly || mentionCount > 0
                               || interactionFlags != Qt::NoTextInteraction);
}

void TextItem::Private::EndHover()
{
    if (interaction_)
        interaction_->EndHover();
}

void TextItem::Private::ForgetSelection()
{
    if (ItemSelection* const selection = Selection())
        selection->Forget();
}

ShownText TextItem::Private::Current()
{
    return {text.LaidOut(), Shown(), hiddenText_};
}

void TextItem::Private::Invalidate()
{
    // Already invalid; nothing to announce.
    if (!isShownValid_)
        return;
    // prepareGeometryChange() calls boundingRect(), which must still return the old
    // one.
    item_.prepareGeometryChange();
    isShownValid_ = false;
    shown_ = ShownLines();
    needsSideClip_.reset();
    mentions_.reset();
    EndHover();
    item_.update();
    item_.updateGeometry();
}

TextItem::TextItem(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : QGraphicsTextItem(parent)
    , QGraphicsLayoutItem(parentLayout)
    , private_(std::make_unique<Private>(*this))
{
    setGraphicsItem(this);
    setAcceptDrops(false);
    setAcceptHoverEvents(false);
    private_->UseApplicationFontFamily();
}

TextItem::~TextItem()
{
    // The base's control is destroyed after the document.
    if (!IsReadOnly())
        QGraphicsTextItem::setDocument(nullptr);
}

void TextItem::InsertRichText(const QString& text, bool append, const QTextCharFormat* format)
{
    const kestro::TextChangeUpdate update(*this);
    QString earlierText;
    if (!append && !private_->IsWithinDisplayLimit(text)) {
        earlierText = toPlainText();
        ClearText();
    }
    private_->ForgetSelection();
    const QTextCharFormat runFormat = format ? *format : QTextCharFormat();
    private_->text.BeginInsertion(append);
    if (private_->markupEnabled && kestro::MayHaveMarkup(text)) {
        for (const MarkupRun& run : kestro::ReadMarkup(text))
            private_->Insert(run, runFormat);
    } else {
        private_->Insert({MarkupRun::Kind::Text, text, 0, {}}, runFormat);
    }
    if (!earlierText.isEmpty())
        private_->Insert({MarkupRun::Kind::Text, earlierText, 0, {}}, QTextCharFormat());
    private_->text.EndInsertion();
}

void TextItem::SetMarkupEnabled(bool enabled)
{
    private_->markupEnabled = enabled;
}

void TextItem::ClearText()
{
    setPlainText(QString());
}

void TextItem::setPlainText(const QString& text)
{
    const kestro::TextChangeUpdate update(*this);
    private_->ReplaceText(text);
}

QString TextItem::toPlainText() const
{
    return private_->PlainText();
}

QTextDocument* TextItem::document() const
{
    return &private_->Document();
}

QTextCursor TextItem::textCursor() const
{
    return IsReadOnly() ? QTextCursor(document()) : QGraphicsTextItem::textCursor();
}

QFont TextItem::font() const
{
    return private_->text.Font();
}

void TextItem::setFont(const QFont& font)
{
    if (font == this->font())
        return;
    private_->text.SetFont(kestro::SharedFont(font));
}

QColor TextItem::defaultTextColor() const
{
    return private_->textColor;
}

void TextItem::setDefaultTextColor(const QColor& color)
{
    if (color == private_->textColor)
        return;
    private_->textColor = color;
    if (!IsReadOnly())
        QGraphicsTextItem::setDefaultTextColor(color);
    update();
}

QColor TextItem::MentionColor() const
{
    return private_->mentionColor;
}

void TextItem::SetMentionColor(const QColor& color)
{
    private_->mentionColor = color;
}

void TextItem::HighlightText(const QStringList& words, const QBrush& brush)
{
    HighlightWords newWords(words);
    if (newWords == private_->highlightWords && brush == private_->highlightBrush)
        return;
    private_->highlightWords = std::move(newWords);
    private_->highlightBrush = brush;
    private_->isHighlightValid = false;
    update();
    kestro::TellAccessibilityClients(*this, QAccessible::TextAttributeChanged);
}

QVector<QPair<int, int>> TextItem::HighlightedRanges() const
{
    QVector<QPair<int, int>> ranges;
    for (const auto& [start, end] : private_->Characters().RangesOf(private_->highlightWords))
        ranges.append({start, end});
    return ranges;
}

QBrush TextItem::HighlightBrush() const
{
    return private_->highlightBrush;
}

void TextItem::SetWrapMode(QTextOption::WrapMode mode)
{
    QTextOption option = private_->text.Option();
    if (mode == option.wrapMode() || !IsWrapMode(mode))
        return;
    option.setWrapMode(mode);
    private_->text.SetOption(option);
}

Qt::Alignment TextItem::TextAlignment() const
{
    return private_->text.Option().alignment();
}

void TextItem::SetTextAlignment(Qt::Alignment alignment)
{
    QTextOption option = private_->text.Option();
    if (alignment == option.alignment())
        return;
    option.setAlignment(alignment);
    private_->text.SetOption(option);
}

void TextItem::SetTextDirection(Qt::LayoutDirection direction)
{
    QTextOption option = private_->text.Option();
    if (direction == option.textDirection())
        return;
    option.setTextDirection(direction);
    private_->text.SetOption(option);
}

QVector<Qt::LayoutDirection> TextItem::ParagraphDirections() const
{
    return private_->text.Directions();
}

void TextItem::SetFixedItemWidth(qreal width)
{
    const qreal newWidth = FixedWidth(width);
    if (newWidth == textWidth())
        return;
    private_->Invalidate();
    private_->hasZeroWidth = newWidth == 0;
    if (DocumentWidth(newWidth) != private_->text.Width())
        private_->text.SetWidth(DocumentWidth(newWidth));
}

void TextItem::setTextWidth(qreal width)
{
    SetFixedItemWidth(width);
}

qreal TextItem::textWidth() const
{
    return private_->hasZeroWidth ? 0 : private_->text.Width();
}

TextItem::NaturalSize TextItem::NaturalLines() const
{
    return private_->NaturalLines();
}

void TextItem::adjustSize()
{
    if (private_->hasZeroWidth)
        SetFixedItemWidth(kNaturalWidth);
    document()->adjustSize();
}

void TextItem::SetFrame(qreal height, qreal topMargin)
{
    private_->text.SetFrame(height, topMargin);
}

void TextItem::SetMaxLineCount(int count)
{
    const int newCount = std::max(count, 0);
    if (newCount == private_->maxLineCount)
        return;
    private_->Invalidate();
    private_->maxLineCount = newCount;
}

void TextItem::SetElide(bool elide)
{
    if (elide == private_->elide)
        return;
    private_->Invalidate();
    private_->elide = elide;
}

void TextItem::SetMaximumCost(int cost)
{
    private_->budget.SetMaximum(cost);
}

int TextItem::Cost() const
{
    return private_->budget.Cost();
}

bool TextItem::ExceedsMaximumCost() const
{
    return private_->budget.IsExceeded();
}

int TextItem::MentionCount() const
{
    return private_->mentionCount;
}

QRectF TextItem::MentionRect(int index) const
{
    QRectF all;
    if (const ShownMention* mention = private_->MentionNumber(index)) {
        for (const QRectF& rect : mention->rects)
            all |= rect;
    }
    return all;
}

void TextItem::ClickMention(int index)
{
    if (const ShownMention* mention = private_->MentionNumber(index))
        private_->Click(mention->mention);
}

QString TextItem::MentionText(int index) const
{
    const ShownMention* const mention = private_->MentionNumber(index);
    return mention ? kestro::TextOfMention(private_->text.LaidOut(), mention->mention) : QString();
}

QRectF TextItem::CharacterRect(int index) const
{
    return index < 0 ? QRectF()
                     : private_->HitTest().RectOf(private_->Characters().PositionOf(index));
}

int TextItem::CharacterAt(const QPointF& point) const
{
    const std::optional<int> position = private_->HitTest().ShownCharacterAt(point);
    return position ? private_->Characters().IndexOf(*position) : -1;
}

int TextItem::ShownLineCount() const
{
    return private_->Shown().Count();
}

QVector<int> TextItem::ShownLineStarts() const
{
    return private_->Characters().LineStarts(private_->Shown());
}

bool TextItem::IsElided() const
{
    return private_->Shown().IsElided();
}

qreal TextItem::FirstLineAscent() const
{
    const ShownLines& shown = private_->Shown();
    return shown.Count() > 0 ? shown.FirstAscent() : QFontMetricsF(font()).ascent();
}

void TextItem::SetReadOnly(bool readOnly)
{
    if (readOnly == IsReadOnly())
        return;
    ClearSelection();
    prepareGeometryChange();
    private_->Invalidate();
    private_->readOnly = readOnly;

    const auto interaction = readOnly ? Qt::NoTextInteraction : Qt::TextEditorInteraction;
    QGraphicsTextItem::setTextInteractionFlags(interaction);
    QGraphicsTextItem::setDocument(readOnly ? nullptr : document());
    QGraphicsTextItem::setDefaultTextColor(defaultTextColor());
    document()->setUndoRedoEnabled(!readOnly);
    setAcceptDrops(!readOnly);
    private_->UpdateHoverEvents();
    update();
}

bool TextItem::IsReadOnly() const
{
    return private_->readOnly;
}

void TextItem::setTextInteractionFlags(Qt::TextInteractionFlags flags)
{
    private_->interactionFlags = flags & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    private_->EndHover();
    private_->UpdateHoverEvents();
    if (!private_->IsSelectable())
        ClearSelection(); // last, because slots may delete the item
}

Qt::TextInteractionFlags TextItem::textInteractionFlags() const
{
    return private_->interactionFlags;
}

bool TextItem::HasSelection() const
{
    const ItemSelection* const selection = private_->Selection();
    return selection && !selection->IsEmpty();
}

QString TextItem::SelectedText() const
{
    return HasSelection() ? private_->Selection()->Text() : QString();
}

QPair<int, int> TextItem::SelectedRange() const
{
    const ItemSelection* const selection = private_->Selection();
    const CharacterRange range = selection ? selection->Characters() : CharacterRange();
    return {range.start, range.end};
}

int TextItem::CursorPosition() const
{
    const ItemSelection* const selection = private_->Selection();
    return selection ? selection->CursorPosition() : 0;
}

void TextItem::Select(int start, int end)
{
    if (private_->IsSelectable())
        private_->Interaction().MakeSelection().Select(
            {std::min(start, end), std::max(start, end)});
}

void TextItem::SelectAll()
{
    if (private_->IsSelectable())
        private_->Interaction().MakeSelection().SelectAll(nullptr);
}

void TextItem::ClearSelection()
{
    if (ItemSelection* const selection = private_->Selection())
        selection->Clear();
}

void TextItem::FontChanged()
{
    if (IsUseFontBonding())
        private_->UseApplicationFontFamily();
}

QSizeF TextItem::sizeHint(Qt::SizeHint which, const QSizeF&) const
{
    switch (which) {
    case Qt::MinimumSize:
    case Qt::PreferredSize:
    case Qt::MaximumSize:
        return QSizeF(-1, boundingRect().height());
    default:
        return QSizeF(-1, -1);
    }
}

void TextItem::setGeometry(const QRectF& rect)
{
    QGraphicsLayoutItem::setGeometry(rect);
    setPos(rect.topLeft());
}

QRectF TextItem::boundingRect() const
{
    if (!IsReadOnly())
        return QGraphicsTextItem::boundingRect();
    QRectF rect = private_->Shown().BoundingRect();
    if (private_->hasZeroWidth)
        rect.setWidth(0);
    return rect;
}

QPainterPath TextItem::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

QRectF TextItem::InkRect() const
{
    if (!IsReadOnly())
        return boundingRect();
    // Glyphs are drawn at whole pixels.
    return private_->Shown().Ink().adjusted(-1, -1, 1, 1) & BetweenSides(boundingRect());
}

bool TextItem::contains(const QPointF& point) const
{
    return boundingRect().contains(point);
}

void TextItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    if (!IsReadOnly()) {
        QGraphicsTextItem::paint(painter, option, widget);
        return;
    }
    const QRectF rect = boundingRect();
    if (rect.isEmpty())
        return;
    painter->save();
    painter->setPen(private_->textColor);
    if (private_->NeedsSideClip())
        ClipSides(*painter, rect);
    const bool isPart = option && option->exposedRect.isValid();
    private_->ShownHighlighted().Draw(*painter, isPart ? option->exposedRect : rect,
                                      private_->highlightBrush, private_->LookOfSelection(widget));
    painter->restore();
}

// The base's handlers leave events accepted even without a text control, so
// read-only items do not call them.

bool TextItem::sceneEvent(QEvent* event)
{
    if (IsReadOnly())
        return QGraphicsItem::sceneEvent(event); // NOLINT(bugprone-parent-virtual-call)
    return QGraphicsTextItem::sceneEvent(event);
}

void TextItem::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? private_->Interaction().Press(*event)
                 : QGraphicsTextItem::mousePressEvent(event);
}

void TextItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? private_->Interaction().Move(*event) : QGraphicsTextItem::mouseMoveEvent(event);
}

void TextItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? private_->Interaction().Release(*event)
                 : QGraphicsTextItem::mouseReleaseEvent(event);
}

// Replaces the second press of a double click.
void TextItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    IsReadOnly() ? private_->Interaction().Press(*event)
                 : QGraphicsTextItem::mouseDoubleClickEvent(event);
}

void TextItem::contextMenuEvent(QGraphicsSceneContextMenuEvent* event)
{
    if (!IsReadOnly())
        QGraphicsTextItem::contextMenuEvent(event);
    else if (private_->interactionFlags == Qt::NoTextInteraction)
        event->ignore();
    else
        kestro::ShowTextMenu(*this, *event, [this](QWidget* viewport) {
            private_->Interaction().MakeSelection().SelectAll(viewport);
        });
}

void TextItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    IsReadOnly() ? private_->Interaction().Hover(*event)
                 : QGraphicsTextItem::hoverEnterEvent(event);
}

void TextItem::hoverMoveEvent(QGraphicsSceneHoverEvent* event)
{
    IsReadOnly() ? private_->Interaction().Hover(*event) : QGraphicsTextItem::hoverMoveEvent(event);
}

void TextItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event)
{
    private_->EndHover();
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::hoverLeaveEvent(event);
}

void TextItem::keyPressEvent(QKeyEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::keyPressEvent(event);
}

void TextItem::keyReleaseEvent(QKeyEvent* event)
{
    IsReadOnly() ? event->ignore() : QGraphicsTextItem::keyReleaseEvent(event);
}

QVariant TextItem::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change == ItemSceneChange)
        ClearSelection();
    return QGraphicsTextItem::itemChange(change, value);
}
