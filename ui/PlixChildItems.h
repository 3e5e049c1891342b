#pragma once

#include <QStringList>

class YogaLayoutItem;

namespace plix {

// What the bubble and boxes do with their children.

// Gives a child of a column the column's full width unless it has a width.
void StretchInColumn(YogaLayoutItem* child);

// Highlights `words` in every child. 1 if at least one child shows one of them,
// else -1.
int HighlightChildren(const YogaLayoutItem& parent, const QStringList& words);

// What the children say, in their order, without those that say nothing.
QStringList ChildTexts(const YogaLayoutItem& parent);

// What the first of the items below says that is no box; empty if none says anything.
QString FirstText(const YogaLayoutItem& parent);

} // namespace plix
