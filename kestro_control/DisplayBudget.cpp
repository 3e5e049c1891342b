#include "DisplayBudget.h"

#include "CodePoint.h"
#include "TextLimits.h"
#include "TextWork.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <iterator>

namespace kestro {

namespace {

constexpr uint kZeroWidthJoiner = 0x200D;

// Texts up to this length are fast to lay out, whatever their characters are.
constexpr int kHarmlessLength = limits::kWordCost / (limits::kCharacterCost + limits::kRunCost);

struct Range {
    uint first;
    uint last;
    int cost;
};

// Characters that may be pictures in a font with colours, and what is added for them.
constexpr Range kPictures[] = {
    {0x20E3, 0x20E3, limits::kPictographCost}, // the key around the character before
    {0x2300, 0x23FF, limits::kPictographCost},
    {0x2600, 0x27BF, limits::kPictographCost},
    {0x2B00, 0x2BFF, limits::kPictographCost},
    {0xFE0F, 0xFE0F, limits::kPictographCost}, // makes a picture of the character before
    {0x1F000, 0x1F1E5, limits::kPictographCost},
    {0x1F1E6, 0x1F1FF, limits::kFlagHalfCost}, // regional indicators
    {0x1F200, 0x1FAFF, limits::kPictographCost},
};

int PictureCost(uint character)
{
    const auto* const range =
        std::find_if(std::begin(kPictures), std::end(kPictures),
                     [character](const Range& row) { return character <= row.last; });
    return range != std::end(kPictures) && character >= range->first ? range->cost : 0;
}

bool EndsLine(uint character)
{
    return character == '\n' || character == '\r' || character == QChar::ParagraphSeparator
        || character == QChar::LineSeparator;
}

bool IsMark(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
}

// Counts the scripts of Japanese as one, that of Chinese: Japanese texts switch
// between them all the time, and lines can break at every switch.
QChar::Script ScriptOf(uint character)
{
    const QChar::Script script = QChar::script(character);
    return script == QChar::Script_Hiragana || script == QChar::Script_Katakana ? QChar::Script_Han
                                                                                : script;
}

} // namespace

DisplayBudget::Direction DisplayBudget::DirectionOf(uint character)
{
    switch (QChar::direction(character)) {
    case QChar::DirL:
        return Direction::LeftToRight;
    case QChar::DirR:
    case QChar::DirAL:
        return Direction::RightToLeft;
    case QChar::DirEN:
    case QChar::DirAN:
        return Direction::Number;
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return Direction::Explicit;
    default:
        return Direction::Neutral;
    }
}

int DisplayBudget::Spend(const QString& text)
{
    used_ += limits::kRunCost;
    if (used_ + text.size() <= kHarmlessLength) {
        used_ += text.size();
        usedByWord_ += text.size();
        return text.size();
    }

    // Cut first: in Thai and the like, the time of the finder grows with the square of the
    // length. The words at the cut are longer than what may be shown of one.
    const int shown = std::max(0, limits::kTextCost - used_);
    const QString searched = text.left(shown + limits::kWordCost);
    WorkSoFar().searchedCharacters += searched.size();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, searched);
    int wordEnd = finder.toNextBoundary();
    int at = 0;
    while (at < text.size()) {
        if (at == wordEnd) {
            usedByWord_ = 0;
            wordEnd = finder.toNextBoundary();
        }
        const uint character = CodePointAt(text, at);
        const int length = QChar::requiresSurrogates(character) ? 2 : 1;
        const int cost = CostOfNext(character) + length - 1;
        if (used_ + cost > limits::kTextCost || usedByWord_ + cost > limits::kWordCost)
            break;
        used_ += cost;
        usedByWord_ += cost;
        at += length;
    }
    if (at == text.size() && text.back().isSpace())
        usedByWord_ = 0;
    const bool splitsLineEnd = at > 0 && at < text.size() && text.at(at - 1) == QLatin1Char('\r')
        && text.at(at) == QLatin1Char('\n');
    return splitsLineEnd ? at - 1 : at;
}

int DisplayBudget::CostOfNext(uint character)
{
    marksInARow_ = IsMark(character) ? marksInARow_ + 1 : 0;
    if (character == kZeroWidthJoiner)
        return limits::kCharacterCost + limits::kJoinerCost;
    const bool isRun =
        StartsRun(character) || marksInARow_ > limits::kMarksOnALetter || EndsLine(character);
    return limits::kCharacterCost + (isRun ? limits::kRunCost : 0) + PictureCost(character);
}

// Whether the text engine starts a new run of text at the character, because it
// has another script or direction than the text before it. Characters that occur
// in all scripts, or have no direction of their own, start none.
bool DisplayBudget::StartsRun(uint character)
{
    const QChar::Script script = ScriptOf(character);
    const bool changesScript = script > QChar::Script_Common && script != script_;
    if (changesScript)
        script_ = script;

    const Direction direction = DirectionOf(character);
    const bool changesDirection = direction != Direction::Neutral
        && (direction != direction_ || direction == Direction::Explicit);
    if (changesDirection)
        direction_ = direction;
    return changesScript || changesDirection;
}

} // namespace kestro
