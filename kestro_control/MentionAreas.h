#pragma once

#include "Mention.h"

#include <QRectF>

#include <optional>
#include <vector>

class QPointF;
class QTextDocument;

namespace kestro {

class ShownLines;

// Where the mentions of a document are shown. Like ShownLines, it must not be used
// after the document has changed.
class MentionAreas {
public:
    MentionAreas() = default;
    MentionAreas(const QTextDocument& document, const ShownLines& shown);

    std::optional<Mention> At(const QPointF& point) const;

private:
    struct Area {
        QRectF rect;
        Mention mention;
    };

    std::vector<Area> areas_;
};

} // namespace kestro
