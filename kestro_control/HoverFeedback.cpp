#include "HoverFeedback.h"

#include "DisplayBudget.h"
#include "TextLimits.h"

#include <QGraphicsItem>

namespace kestro {

namespace {

// As much of a text as can be laid out in a short time.
QString Shortened(const QString& text)
{
    QString start = text.left(limits::kToolTipCharacters);
    start.truncate(DisplayBudget().Spend(start));
    return start.size() < text.size() ? start + QChar(0x2026) : text;
}

// A tooltip breaks only lines of HTML.
QString AsHtml(const QString& text)
{
    return QStringLiteral("<p style=\"white-space:pre-wrap\">") + text.toHtmlEscaped()
        + QStringLiteral("</p>");
}

} // namespace

HoverFeedback::HoverFeedback(QGraphicsItem& item)
    : item_(item)
    , ownCursor_(item.hasCursor() ? std::optional(item.cursor()) : std::nullopt)
{
}

HoverFeedback::~HoverFeedback()
{
    ShowCursor(std::nullopt);
    HideToolTip();
}

void HoverFeedback::ShowCursor(std::optional<Qt::CursorShape> shape)
{
    if (shape == shape_)
        return;
    shape_ = shape;
    if (shape)
        item_.setCursor(*shape);
    else if (ownCursor_)
        item_.setCursor(*ownCursor_);
    else
        item_.unsetCursor();
}

void HoverFeedback::ShowToolTip(const QString& text)
{
    if (hasToolTip_ || !item_.toolTip().isEmpty())
        return;
    hasToolTip_ = true;
    item_.setToolTip(AsHtml(Shortened(text)));
}

void HoverFeedback::HideToolTip()
{
    if (!hasToolTip_)
        return;
    hasToolTip_ = false;
    item_.setToolTip(QString());
}

} // namespace kestro
