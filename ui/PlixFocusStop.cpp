#include "ui/PlixFocusStop.h"

#include "ui/PlixFocusRing.h"

#include <kestro_control/TextItem.h>

#include <QKeyEvent>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <utility>

namespace {

// So that the ring does not cover the edges of letters.
constexpr double kMargin = 2;

constexpr std::array kClickKeys = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select};

} // namespace

PlixFocusStop::PlixFocusStop(TextItem& text, std::optional<int> mention, ClickFunc click)
    : QGraphicsWidget(text.parentItem())
    , text_(text)
    , mention_(mention)
    , click_(std::move(click))
{
    setAcceptedMouseButtons(Qt::NoButton);
    setFlag(ItemHasNoContents);
    setZValue(1); // in front of the text
    setFocusPolicy(Qt::TabFocus);
    hide();
}

bool PlixFocusStop::IsClick(const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    return modifiers == Qt::NoModifier && !event.isAutoRepeat()
        && std::count(kClickKeys.begin(), kClickKeys.end(), event.key()) > 0;
}

void PlixFocusStop::Place(const QRectF& glyphs)
{
    setVisible(!glyphs.isEmpty());
    setGeometry(glyphs.adjusted(-kMargin, -kMargin, kMargin, kMargin));
}

QPainterPath PlixFocusStop::shape() const
{
    return {};
}

void PlixFocusStop::focusInEvent(QFocusEvent*)
{
    PlixFocusRing::Show(*this, 0);
}

void PlixFocusStop::focusOutEvent(QFocusEvent*)
{
    PlixFocusRing::Hide(*this);
}

void PlixFocusStop::keyPressEvent(QKeyEvent* event)
{
    if (!IsClick(*event)) {
        QGraphicsWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    Click();
}

void PlixFocusStop::Click()
{
    const ClickFunc click = click_;
    click();
}
