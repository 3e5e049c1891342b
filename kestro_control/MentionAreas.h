#pragma once

#include "Mention.h"

#include <QRectF>

#include <optional>
#include <vector>

class QPointF;

namespace kestro {

class LaidOutText;
class ShownLines;

// Where the mentions of a text are shown. Like ShownLines, it must not be used after
// the text's layout has changed.
class MentionAreas {
public:
    MentionAreas() = default;
    MentionAreas(const LaidOutText& text, const ShownLines& shown);

    std::optional<Mention> At(const QPointF& point) const;

private:
    struct Area {
        QRectF rect;
        Mention mention;
    };

    std::vector<Area> areas_;
};

} // namespace kestro
