#include "MentionAreas.h"

#include "LaidOutText.h"
#include "ShownLines.h"

#include <algorithm>

namespace kestro {

MentionAreas::MentionAreas(const LaidOutText& text, const ShownLines& shown)
{
    const int count = text.ParagraphCount();
    for (int i = 0; i < count; ++i) {
        const LaidOutParagraph paragraph = text.Paragraph(i);
        for (const QTextLayout::FormatRange& range : paragraph.formats) {
            const std::optional<Mention> mention = Mention::ReadFrom(range.format);
            if (!mention)
                continue;
            const int start = paragraph.position + range.start;
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
