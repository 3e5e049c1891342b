#pragma once

class QStringList;
class YogaLayoutItem;

namespace plix {

// What the bubble and its boxes do alike with their children.

// Children of a column take its full width unless they have a width.
void StretchInColumn(YogaLayoutItem* child);

// Highlights `words` in every child; 1 when at least one shows one, else -1.
int HighlightChildren(const YogaLayoutItem& parent, const QStringList& words);

} // namespace plix
