#include "TextReader.h"

#include <QGraphicsObject>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace bench {
namespace {

// A line of what was painted, from left to right.
struct PaintedLine {
    QString text;
    qreal baseline = 0;
    qreal left = 0;
    qreal right = 0;
};

std::vector<PaintedLine> linesOf(const std::vector<PaintedRun>& runs)
{
    std::vector<PaintedLine> lines;
    for (const PaintedRun& run : runs) {
        const qreal left = run.baseline.x();
        const qreal right = left + run.width;
        const bool isNew = lines.empty() || std::abs(lines.back().baseline - run.baseline.y()) > 1;
        if (isNew)
            lines.push_back({{}, run.baseline.y(), left, right});
        PaintedLine& line = lines.back();
        line.text += run.text;
        line.left = std::min(line.left, left);
        line.right = std::max(line.right, right);
    }
    return lines;
}

int inkedCharacters(const QString& text)
{
    const auto hasInk = [](QChar character) { return !character.isSpace(); };
    return static_cast<int>(std::count_if(text.begin(), text.end(), hasInk));
}

QString joined(const std::vector<PaintedLine>& lines)
{
    QStringList texts;
    for (const PaintedLine& line : lines)
        texts.append(line.text);
    return texts.join(QChar(QChar::LineSeparator));
}

// All of the text, or what was painted of it.
QString shownText(QString all, const std::vector<PaintedLine>& lines)
{
    QString painted = joined(lines);
    if (inkedCharacters(painted) != inkedCharacters(all))
        return painted;
    return all.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
}

// The shortest line tells most.
Qt::Alignment alignmentOf(const std::vector<PaintedLine>& lines, qreal width)
{
    const auto isShorter = [](const PaintedLine& one, const PaintedLine& other) {
        return one.right - one.left < other.right - other.left;
    };
    const auto shortest = std::min_element(lines.begin(), lines.end(), isShorter);
    if (shortest == lines.end())
        return Qt::AlignLeft;
    const qreal right = width - shortest->right;
    if (shortest->left < 2)
        return Qt::AlignLeft;
    return std::abs(shortest->left - right) < 3 ? Qt::AlignHCenter : Qt::AlignRight;
}

bool isSameFont(const QFont& one, const QFont& other)
{
    return one.family() == other.family() && one.pixelSize() == other.pixelSize()
        && one.weight() == other.weight() && one.italic() == other.italic()
        && one.underline() == other.underline() && one.strikeOut() == other.strikeOut();
}

std::vector<Span> spansOf(const Text& text, const std::vector<PaintedRun>& runs)
{
    std::vector<Span> spans;
    int end = 0;
    for (const PaintedRun& run : runs) {
        // Runs of right-to-left text come in the order of the eye.
        int start = text.shown.indexOf(run.text, end);
        if (start < 0)
            start = text.shown.indexOf(run.text);
        end = std::max(end, start + run.text.size());
        if (start >= 0 && !(isSameFont(run.font, text.font) && run.color == text.color))
            spans.push_back({start, run.text.size(), run.font, run.color});
    }
    return spans;
}

// Items that show a text, by the properties that tell of it.
struct TextProperties {
    const char* own; // that no other kind of item has
    const char* text;
    const char* font;
    bool isLabel;
};

constexpr TextProperties kinds[] = {{"shownLineCount", "plainText", "font", false},
                                    {"shownLabel", "shownLabel", "labelFont", true}};

const TextProperties* kindOf(const QGraphicsObject& item)
{
    const auto has = [&item](const TextProperties& kind) {
        return item.property(kind.own).isValid();
    };
    const auto* const kind = std::find_if(std::begin(kinds), std::end(kinds), has);
    return kind == std::end(kinds) ? nullptr : kind;
}

} // namespace

std::optional<Text> readText(const QGraphicsObject& item, const PaintRecord& record)
{
    const TextProperties* kind = kindOf(item);
    if (!kind)
        return std::nullopt;
    const std::vector<PaintedLine> lines = linesOf(record.runs);
    Text text;
    text.shown = shownText(item.property(kind->text).toString(), lines);
    text.isLabel = kind->isLabel;
    text.font = item.property(kind->font).value<QFont>();
    text.width = item.boundingRect().width();
    text.lineCount = static_cast<int>(lines.size());
    text.alignment = alignmentOf(lines, text.width);
    if (lines.empty())
        return text;
    text.color = record.runs.front().color;
    text.baseline = lines.front().baseline - item.boundingRect().top();
    text.spans = spansOf(text, record.runs);
    return text;
}

} // namespace bench
