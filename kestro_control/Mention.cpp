#include "Mention.h"

#include "TextProperty.h"

#include <QTextCharFormat>

namespace kestro {

void Mention::WriteTo(QTextCharFormat& format) const
{
    format.setProperty(TextProperty::MentionIsBot, isBot);
    format.setProperty(TextProperty::MentionUserNo, userNo);
    format.setProperty(TextProperty::MentionId, id);
}

std::optional<Mention> Mention::ReadFrom(const QTextFormat& format)
{
    if (!format.hasProperty(TextProperty::MentionId))
        return std::nullopt;
    return Mention {format.boolProperty(TextProperty::MentionIsBot),
                    format.property(TextProperty::MentionUserNo).toLongLong(),
                    format.intProperty(TextProperty::MentionId)};
}

} // namespace kestro
