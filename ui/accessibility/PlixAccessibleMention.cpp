#include "ui/accessibility/PlixAccessibleMention.h"

#include "ui/PlixFocusStop.h"

#include <kestro_control/TextItem.h>

PlixFocusStop* PlixAccessibleMention::Stop() const
{
    return qobject_cast<PlixFocusStop*>(object());
}

QGraphicsItem* PlixAccessibleMention::ParentItem() const
{
    const PlixFocusStop* const stop = Stop();
    return stop ? &stop->Text() : nullptr;
}

QString PlixAccessibleMention::Name() const
{
    const PlixFocusStop* const stop = Stop();
    return stop ? stop->Text().MentionText(*stop->Mention()) : QString();
}

void PlixAccessibleMention::Press()
{
    Stop()->Click();
}
