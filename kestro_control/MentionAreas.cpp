#include "MentionAreas.h"

#include "LaidOutText.h"
#include "MentionName.h"
#include "ParagraphText.h"
#include "ShownLines.h"

#include <algorithm>
#include <utility>

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
            Add(*mention, shown.GlyphRects({start, start + range.length}));
        }
    }
}

// A mention with several formats comes in several parts.
void MentionAreas::Add(const Mention& mention, std::vector<QRectF> rects)
{
    if (mentions_.empty() || mentions_.back().mention.id != mention.id) {
        mentions_.push_back({mention, std::move(rects)});
        return;
    }
    std::vector<QRectF>& all = mentions_.back().rects;
    all.insert(all.end(), rects.begin(), rects.end());
}

std::optional<Mention> MentionAreas::At(const QPointF& point) const
{
    const auto isAt = [&point](const ShownMention& shown) {
        return std::any_of(shown.rects.begin(), shown.rects.end(),
                           [&point](const QRectF& rect) { return rect.contains(point); });
    };
    const auto found = std::find_if(mentions_.begin(), mentions_.end(), isAt);
    return found == mentions_.end() ? std::nullopt : std::optional(found->mention);
}

QString TextOfMention(const LaidOutText& text, const Mention& mention)
{
    QString characters;
    const int count = text.ParagraphCount();
    for (int i = 0; i < count; ++i) {
        const LaidOutParagraph paragraph = text.Paragraph(i);
        for (const QTextLayout::FormatRange& range : paragraph.formats) {
            const std::optional<Mention> part = Mention::ReadFrom(range.format);
            if (part && part->id == mention.id)
                characters += paragraph.text.midRef(range.start, range.length);
        }
    }
    return WithoutDirections(AsPlainText(characters));
}

} // namespace kestro
