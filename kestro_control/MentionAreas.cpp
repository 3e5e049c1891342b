#include "MentionAreas.h"

#include "ShownLines.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace kestro {

MentionAreas::MentionAreas(const QTextDocument& document, const ShownLines& shown)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& range : block.textFormats()) {
            const std::optional<Mention> mention = Mention::ReadFrom(range.format);
            if (!mention)
                continue;
            const int start = block.position() + range.start;
            for (const QRectF& rect : shown.GlyphRects(start, start + range.length))
                areas_.push_back({rect, *mention});
        }
    }
}

std::optional<Mention> MentionAreas::At(const QPointF& point) const
{
    const auto area = std::find_if(areas_.begin(), areas_.end(), [&point](const Area& candidate) {
        return candidate.rect.contains(point);
    });
    return area == areas_.end() ? std::nullopt : std::optional(area->mention);
}

} // namespace kestro
