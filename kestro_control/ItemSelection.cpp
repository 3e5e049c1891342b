#include "ItemSelection.h"

#include "ClickBelow.h"
#include "InteractiveText.h"
#include "LaidOutText.h"
#include "SelectionFocus.h"
#include "SelectionUpdate.h"
#include "TextHitTest.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>
#include <QWidget>

#include <utility>

namespace kestro {

namespace {

// In pixels of the screen. A hand moves the mouse a little while it clicks.
constexpr int kTremble = 3;

// Tells the selections of a scene that another one has begun.
class SelectionBegun : public QEvent {
public:
    explicit SelectionBegun(const ItemSelection& begun)
        : QEvent(EventType())
        , begun_(begun)
    {
    }

    // Whether `event` says that a selection other than this one has begun.
    static bool IsOfOtherThan(const ItemSelection& selection, const QEvent& event)
    {
        return event.type() == EventType()
            && &static_cast<const SelectionBegun&>(event).begun_ != &selection;
    }

private:
    static Type EventType()
    {
        static const auto type = static_cast<Type>(registerEventType());
        return type;
    }

    const ItemSelection& begun_;
};

TextHitTest HitTestOf(const ShownText& shown)
{
    return TextHitTest(shown.text, shown.lines);
}

// The unit of the text at the place of the mouse.
TextRange UnitAt(const QGraphicsSceneMouseEvent& event, TextUnit unit, const TextHitTest& text)
{
    const bool isCaret = unit == TextUnit::Character;
    const int position = isCaret ? text.PositionAt(event.pos()) : text.CharacterAt(event.pos());
    return isCaret ? TextRange {position, position} : text.Units().At(position, unit);
}

} // namespace

ItemSelection::ItemSelection(QGraphicsObject& item, InteractiveText& text)
    : item_(item)
    , text_(text)
{
}

ItemSelection::~ItemSelection()
{
    delete focus_;
}

CharacterRange ItemSelection::Characters() const
{
    if (IsEmpty())
        return {};
    const ShownText shown = text_.Current();
    const TextCharacters characters(shown.text);
    const int hidden = Range().end == shown.text.End() ? shown.hiddenText.size() : 0;
    return {characters.IndexOf(Range().start), characters.IndexOf(Range().end) + hidden};
}

QString ItemSelection::Text() const
{
    const CharacterRange range = Characters();
    return text_.PlainText().mid(range.start, range.end - range.start);
}

int ItemSelection::CursorPosition() const
{
    const CharacterRange range = Characters();
    return selection_.Position() == Range().start ? range.start : range.end;
}

void ItemSelection::Select(const CharacterRange& range)
{
    const ShownText shown = text_.Current();
    const TextRange positions = TextCharacters(shown.text).PositionsOf(range);
    if (positions.IsEmpty())
        Clear();
    else
        Change(TextSelection(TextUnits(shown.text).Around(positions)), nullptr);
}

void ItemSelection::SelectAll(QWidget* viewport)
{
    Change(TextSelection({0, text_.Current().text.End()}), viewport);
}

void ItemSelection::Clear()
{
    Forget();
    if (!watchedScene_)
        return;
    watchedScene_->removeEventFilter(this);
    watchedScene_.clear();
    const QPointer<SelectionFocus> focus = std::exchange(focus_, nullptr);
    if (focus)
        focus->clearFocus(); // slots may delete it, with this object
    delete focus;
}

void ItemSelection::Forget()
{
    const bool wasEmpty = IsEmpty();
    selection_ = TextSelection();
    isPressed_ = false;
    if (!wasEmpty)
        Announce();
}

void ItemSelection::Announce()
{
    item_.update();
    TellOfSelection(*this, item_);
}

bool ItemSelection::IsExtendedBy(const QGraphicsSceneMouseEvent& press) const
{
    return watchedScene_ && press.modifiers().testFlag(Qt::ShiftModifier);
}

void ItemSelection::Press(const QGraphicsSceneMouseEvent& event)
{
    StartDrag(event, IsThirdPress(event) ? TextUnit::Paragraph : TextUnit::Character);
    const TextRange unit = UnitAt(event, unit_, HitTestOf(text_.Current()));
    hasSelected_ = IsExtendedBy(event);
    Change(hasSelected_ ? selection_.MovedTo(unit.end) : TextSelection(unit), event.widget());
}

void ItemSelection::DoubleClick(const QGraphicsSceneMouseEvent& event)
{
    StartDrag(event, TextUnit::Word);
    sinceDoubleClick_.start();
    Change(TextSelection(UnitAt(event, unit_, HitTestOf(text_.Current()))), event.widget());
}

void ItemSelection::StartDrag(const QGraphicsSceneMouseEvent& press, TextUnit unit)
{
    isPressed_ = true;
    hasSelected_ = false;
    pressedAt_ = press.scenePos();
    pressedOnScreen_ = press.screenPos();
    unit_ = unit;
}

// To be called before the place of the second press is forgotten.
bool ItemSelection::IsThirdPress(const QGraphicsSceneMouseEvent& press) const
{
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const QPoint distance = press.screenPos() - pressedOnScreen_;
    return unit_ == TextUnit::Word
        && !sinceDoubleClick_.hasExpired(hints.mouseDoubleClickInterval())
        && distance.manhattanLength() < hints.startDragDistance();
}

void ItemSelection::Move(const QGraphicsSceneMouseEvent& event)
{
    const QPoint distance = event.screenPos() - pressedOnScreen_;
    if (!isPressed_ || (!hasSelected_ && distance.manhattanLength() < kTremble))
        return;
    const TextRange unit = UnitAt(event, unit_, HitTestOf(text_.Current()));
    QWidget* const viewport = hasSelected_ ? nullptr : event.widget();
    Change(selection_.ExtendedTo(unit), viewport);
}

void ItemSelection::Release(const QGraphicsSceneMouseEvent& event)
{
    isPressed_ = false;
    if (!hasSelected_)
        PassClickBelow(item_, event, pressedAt_);
    else if (IsEmpty())
        Clear();
    else
        SetPrimarySelection();
}

bool ItemSelection::HasFocus(const QWidget* viewport) const
{
    return focus_ && focus_->hasFocus() && (!viewport || viewport->hasFocus());
}

void ItemSelection::KeepFocus(QWidget* viewport)
{
    if (focus_ && viewport && viewport->hasFocus())
        focus_->Take(viewport);
}

bool ItemSelection::IsKey(const QKeyEvent& event) const
{
    if (event.matches(QKeySequence::Copy))
        return !IsEmpty();
    return watchedScene_ && (event.matches(QKeySequence::SelectAll) || IsSelectionKey(event));
}

void ItemSelection::HandleKey(const QKeyEvent& event)
{
    if (event.matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(Text());
        return;
    }
    if (event.matches(QKeySequence::SelectAll)) {
        SelectAll(nullptr);
    } else if (const auto moved =
                   MovedByKey(event, HitTestOf(text_.Current()), {selection_.Position(), x_})) {
        Change(selection_.MovedTo(moved->position), nullptr);
        x_ = moved->x;
    }
    SetPrimarySelection();
}

void ItemSelection::Change(const TextSelection& selection, QWidget* viewport)
{
    const TextRange before = Range();
    selection_ = selection;
    x_.reset();
    if (Range() != before && !(IsEmpty() && before.IsEmpty()))
        Announce();
    if (IsEmpty())
        return;
    hasSelected_ = true;
    const QPointer<ItemSelection> self(this); // slots may delete it
    WatchScene();
    if (self && focus_ && viewport)
        focus_->Take(viewport);
}

void ItemSelection::WatchScene()
{
    QGraphicsScene* const scene = item_.scene();
    if (!scene || scene == watchedScene_)
        return;
    watchedScene_ = scene;
    focus_ = new SelectionFocus(item_, *this);
    scene->installEventFilter(this);
    SelectionBegun begun(*this);
    QCoreApplication::sendEvent(scene, &begun);
}

bool ItemSelection::eventFilter(QObject*, QEvent* event)
{
    if (SelectionBegun::IsOfOtherThan(*this, *event) || IsPressElsewhere(*event))
        Clear();
    return false;
}

// A press on the item that begins another selection counts, too.
bool ItemSelection::IsPressElsewhere(const QEvent& event) const
{
    if (event.type() != QEvent::GraphicsSceneMousePress
        && event.type() != QEvent::GraphicsSceneMouseDoubleClick)
        return false;
    const auto& press = static_cast<const QGraphicsSceneMouseEvent&>(event);
    const bool isOnItem = item_.contains(item_.mapFromScene(press.scenePos()));
    return press.button() == Qt::LeftButton && !(isOnItem && IsExtendedBy(press));
}

// What the middle button pastes on X11.
void ItemSelection::SetPrimarySelection() const
{
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (clipboard->supportsSelection() && !IsEmpty())
        clipboard->setText(Text(), QClipboard::Selection);
}

} // namespace kestro
