#pragma once

#include "Mention.h"

#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

class QPointF;

namespace kestro {

class LaidOutText;
class ShownLines;

// A mention, and where it is shown. It has no rectangles where it is cut off.
struct ShownMention {
    Mention mention;
    std::vector<QRectF> rects;
};

// The mentions of a text, in its order. Like ShownLines, it must not be used after
// the text's layout has changed.
class MentionAreas {
public:
    MentionAreas() = default;
    MentionAreas(const LaidOutText& text, const ShownLines& shown);

    const std::vector<ShownMention>& All() const { return mentions_; }

    std::optional<Mention> At(const QPointF& point) const;

private:
    void Add(const Mention& mention, std::vector<QRectF> rects);

    std::vector<ShownMention> mentions_;
};

// The name that a mention shows.
QString TextOfMention(const LaidOutText& text, const Mention& mention);

} // namespace kestro
