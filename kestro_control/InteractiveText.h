#pragma once

#include "Mention.h"

#include <QString>

#include <optional>

class QPointF;

namespace kestro {

class LaidOutText;
class ShownLines;

// A text and what is shown of it. Valid until the text or its layout changes.
struct ShownText {
    const LaidOutText& text;
    const ShownLines& lines;
    // What follows beyond the display limit.
    const QString& hiddenText;
};

// A text of an item that the user clicks and selects.
class InteractiveText {
public:
    InteractiveText() = default;
    InteractiveText(const InteractiveText&) = delete;
    InteractiveText& operator=(const InteractiveText&) = delete;
    virtual ~InteractiveText() = default;

    virtual Qt::TextInteractionFlags InteractionFlags() const = 0;
    virtual ShownText Current() = 0;
    // All of the text.
    virtual QString PlainText() = 0;

    // The mention whose glyphs are at this point of the item.
    virtual std::optional<Mention> MentionAt(const QPointF& point) = 0;
    // Slots may delete the item, and `mention` with it.
    virtual void Click(const Mention& mention) = 0;
};

} // namespace kestro
