#pragma once

class QStringList;
class YogaLayoutItem;

namespace plix {

// What the bubble and boxes do with their children.

// Gives a child of a column the column's full width unless it has a width.
void StretchInColumn(YogaLayoutItem* child);

// Highlights `words` in every child. 1 if at least one child shows one of them,
// else -1.
int HighlightChildren(const YogaLayoutItem& parent, const QStringList& words);

} // namespace plix
