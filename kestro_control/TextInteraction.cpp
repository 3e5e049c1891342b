#include "TextInteraction.h"

#include "HoverFeedback.h"
#include "InteractiveText.h"
#include "ItemSelection.h"
#include "ShownLines.h"

#include <QGraphicsObject>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>

#include <utility>

namespace kestro {

TextInteraction::TextInteraction(QGraphicsObject& item, InteractiveText& text)
    : item_(item)
    , text_(text)
{
}

TextInteraction::~TextInteraction() = default;

void TextInteraction::Press(QGraphicsSceneMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) {
        event.ignore();
        if (selection_)
            selection_->KeepFocus(event.widget());
        return;
    }
    const bool isExtension = selection_ && selection_->IsExtendedBy(event);
    const std::optional<Mention> mention =
        isExtension ? std::nullopt : text_.MentionAt(event.pos());
    if (mention)
        pressedMentionId_ = mention->id;
    else if (!IsSelectable())
        event.ignore();
    else if (event.type() == QEvent::GraphicsSceneMouseDoubleClick)
        MakeSelection().DoubleClick(event);
    else
        MakeSelection().Press(event);
}

void TextInteraction::Move(QGraphicsSceneMouseEvent& event)
{
    event.setAccepted(pressedMentionId_ || IsSelecting());
    if (IsSelecting())
        selection_->Move(event);
}

void TextInteraction::Release(QGraphicsSceneMouseEvent& event)
{
    const bool isLeft = event.button() == Qt::LeftButton;
    if (isLeft && pressedMentionId_)
        ReleaseMention(event);
    else if (isLeft && IsSelecting())
        selection_->Release(event);
    else
        event.ignore();
}

void TextInteraction::ReleaseMention(const QGraphicsSceneMouseEvent& event)
{
    const int pressed = *std::exchange(pressedMentionId_, std::nullopt);
    const std::optional<Mention> mention = text_.MentionAt(event.pos());
    if (mention && mention->id == pressed)
        text_.Click(*mention);
}

void TextInteraction::Hover(QGraphicsSceneHoverEvent& event)
{
    event.ignore();
    if (!hover_)
        hover_ = std::make_unique<HoverFeedback>(item_);
    if (text_.MentionAt(event.pos()))
        hover_->ShowCursor(Qt::PointingHandCursor);
    else
        hover_->ShowCursor(IsSelectable() ? std::optional(Qt::IBeamCursor) : std::nullopt);
    const bool needsToolTip =
        text_.InteractionFlags() != Qt::NoTextInteraction && text_.Current().lines.IsElided();
    if (needsToolTip && !hover_->HasToolTip())
        hover_->ShowToolTip(text_.PlainText());
}

void TextInteraction::EndHover()
{
    hover_.reset();
}

ItemSelection& TextInteraction::MakeSelection()
{
    if (!selection_)
        selection_ = std::make_unique<ItemSelection>(item_, text_);
    return *selection_;
}

bool TextInteraction::IsSelectable() const
{
    return text_.InteractionFlags().testFlag(Qt::TextSelectableByMouse);
}

bool TextInteraction::IsSelecting() const
{
    return selection_ && selection_->IsPressed();
}

} // namespace kestro
