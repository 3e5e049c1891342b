#include "ParagraphText.h"

#include "LaidOutText.h"
#include "TextProperty.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace kestro {

ParagraphText::ParagraphText(QString text, const QVector<QTextLayout::FormatRange>& formats,
                             int start)
    : characters_(std::move(text))
    , start_(start)
{
    if (!characters_.contains(QChar::ObjectReplacementCharacter))
        return;
    const QString withObjects = std::exchange(characters_, QString());
    for (const QTextLayout::FormatRange& range : formats) {
        const bool isEmoji = range.format.hasProperty(TextProperty::EmojiCharacters);
        for (int at = range.start; at < range.start + range.length; ++at) {
            const QString shown = isEmoji
                ? range.format.stringProperty(TextProperty::EmojiCharacters)
                : QString(withObjects.at(at));
            characters_ += shown;
            positions_.insert(positions_.end(), static_cast<std::size_t>(shown.size()), at);
        }
    }
    positions_.push_back(withObjects.size());
}

ParagraphText::ParagraphText(const LaidOutParagraph& paragraph)
    : ParagraphText(paragraph.text, paragraph.formats, paragraph.position)
{
}

int ParagraphText::Position(int index) const
{
    return start_ + (positions_.empty() ? index : positions_[static_cast<std::size_t>(index)]);
}

int ParagraphText::Index(int position) const
{
    const int inParagraph = position - start_;
    if (positions_.empty())
        return std::clamp(inParagraph, 0, characters_.size());
    const auto found = std::lower_bound(positions_.begin(), positions_.end() - 1, inParagraph);
    return static_cast<int>(found - positions_.begin());
}

bool EndsParagraph(QChar character)
{
    switch (character.unicode()) {
    case '\n':
    case '\r':
    case 0xFDD0: // QTextDocument's start of a frame
    case 0xFDD1: // and its end.
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

QString AsPlainText(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar& character : text) {
        if (EndsParagraph(character) || character == QChar::LineSeparator)
            character = QLatin1Char('\n');
        else if (character == QChar::Nbsp)
            character = QLatin1Char(' ');
    }
    return text;
}

QString PlainTextOf(const QTextDocument& document)
{
    QString text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block != document.begin())
            text += QLatin1Char('\n');
        text += ParagraphText(block.text(), block.textFormats(), block.position()).Characters();
    }
    return AsPlainText(text);
}

} // namespace kestro
