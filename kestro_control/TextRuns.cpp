#include "TextRuns.h"

#include "ParagraphText.h"

#include <QFont>
#include <QTextCursor>

#include <algorithm>

namespace kestro {

namespace {

// The text engine splits longer texts in other places if they have formats.
constexpr int kMaximumFormattedLength = 4096;

// Outside of a document, the text engine has no objects, and takes the width of tabs
// from the font's resolution. It also remembers which soft hyphens were drawn, so that
// lines could not be broken again without shaping.
bool IsForDocumentsOnly(QChar character)
{
    switch (character.unicode()) {
    case QChar::ObjectReplacementCharacter:
    case QChar::SoftHyphen:
    case QChar::Tabulation:
        return true;
    default:
        return false;
    }
}

// Objects, capitals made from small letters and sizes relative to another font need
// a document.
bool IsForDocumentsOnly(const QTextCharFormat& format)
{
    return !format.isCharFormat() || format.objectIndex() != -1
        || format.objectType() != QTextFormat::NoObject
        || format.hasProperty(QTextFormat::FontSizeAdjustment)
        || format.fontCapitalization() != QFont::MixedCase;
}

void AppendText(ParagraphSource& paragraph, const QString& text, const QTextCharFormat& format)
{
    if (text.isEmpty())
        return;
    QVector<QTextLayout::FormatRange>& formats = paragraph.formats;
    if (!formats.isEmpty() && formats.last().format == format)
        formats.last().length += text.size();
    else
        formats.push_back({paragraph.text.size(), text.size(), format});
    // The usual text has one run, and shares its characters.
    paragraph.text = paragraph.text.isEmpty() ? text : paragraph.text + text;
}

// A range without a format has no effect, but costs memory.
void RemoveEmptyFormat(ParagraphSource& paragraph)
{
    if (paragraph.formats.size() == 1 && paragraph.formats.first().format.isEmpty())
        paragraph.formats.clear();
}

} // namespace

bool TextRuns::CanHave(const QFont& font)
{
    return font.capitalization() == QFont::MixedCase;
}

bool TextRuns::CanAppend(const QString& text, const QTextCharFormat& format) const
{
    const auto isForDocumentsOnly = [](QChar character) { return IsForDocumentsOnly(character); };
    if (IsForDocumentsOnly(format) || std::any_of(text.begin(), text.end(), isForDocumentsOnly))
        return false;
    const bool hasFormats = !format.isEmpty() || HasFormats();
    // A line that only has a separator is as high as the font of the paragraph's end.
    return !hasFormats
        || (length_ + text.size() <= kMaximumFormattedLength && !text.contains(QChar::LineSeparator)
            && std::none_of(runs_.begin(), runs_.end(), [](const Run& run) {
                   return run.text.contains(QChar::LineSeparator);
               }));
}

void TextRuns::Append(const QString& text, const QTextCharFormat& format)
{
    runs_.push_back({text, format});
    length_ += text.size();
}

void TextRuns::Clear()
{
    runs_.clear();
    length_ = 0;
}

QString TextRuns::PlainText() const
{
    QString text;
    for (const Run& run : runs_)
        text += AsPlainText(run.text);
    return text;
}

std::vector<ParagraphSource> TextRuns::Paragraphs() const
{
    if (runs_.size() == 1 && runs_.front().format.isEmpty()
        && std::none_of(runs_.front().text.begin(), runs_.front().text.end(), &EndsParagraph))
        return {{runs_.front().text, {}, {}}};
    std::vector<ParagraphSource> paragraphs(1);
    for (const Run& run : runs_) {
        const QString& text = run.text;
        int start = 0;
        for (int at = 0; at < text.size(); ++at) {
            if (!EndsParagraph(text.at(at)))
                continue;
            AppendText(paragraphs.back(), text.mid(start, at - start), run.format);
            paragraphs.push_back({{}, {}, run.format});
            if (text.at(at) == QLatin1Char('\r') && text.mid(at + 1, 1) == QLatin1String("\n"))
                ++at;
            start = at + 1;
        }
        AppendText(paragraphs.back(), text.mid(start), run.format);
    }
    for (ParagraphSource& paragraph : paragraphs)
        RemoveEmptyFormat(paragraph);
    return paragraphs;
}

void TextRuns::InsertInto(QTextCursor& cursor) const
{
    for (const Run& run : runs_)
        cursor.insertText(run.text, run.format);
}

bool TextRuns::HasFormats() const
{
    return std::any_of(runs_.begin(), runs_.end(),
                       [](const Run& run) { return !run.format.isEmpty(); });
}

} // namespace kestro
