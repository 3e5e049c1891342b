#include "DisplayBudget.h"

#include "CodePoint.h"
#include "TextLimits.h"
#include "TextWork.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <iterator>
#include <optional>

namespace kestro {

namespace {

constexpr uint kZeroWidthJoiner = 0x200D;

// In texts up to this length, no word can be too long.
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

bool SplitsLineEnd(const QString& text, int at)
{
    return at > 0 && at < text.size() && text.at(at - 1) == QLatin1Char('\r')
        && text.at(at) == QLatin1Char('\n');
}

// Where the words of a text end, which is where a line can break.
class WordEnds {
public:
    explicit WordEnds(const QString& text)
        : finder_(QTextBoundaryFinder::Line, text)
        , next_(finder_.toNextBoundary())
    {
        WorkSoFar().searchedCharacters += text.size();
    }

    // To be called with ascending positions.
    bool IsAt(int position)
    {
        if (position != next_)
            return false;
        next_ = finder_.toNextBoundary();
        return true;
    }

private:
    QTextBoundaryFinder finder_;
    int next_;
};

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
    length_ += limits::kRunCost + text.size();
    std::optional<WordEnds> words;
    if (length_ > kHarmlessLength)
        words.emplace(Searched(text));
    int at = 0;
    while (at < text.size()) {
        if (words && words->IsAt(at))
            usedByWord_ = 0;
        const uint character = CodePointAt(text, at);
        const int length = QChar::requiresSurrogates(character) ? 2 : 1;
        const Price price = PriceOfNext(character);
        if (!Has(price) || (words && usedByWord_ + price.inText > limits::kWordCost))
            break;
        used_ += price.inText;
        pictures_ += price.ofPictures;
        usedByWord_ += words ? price.inText : length;
        at += length;
    }
    if (at == text.size() && !text.isEmpty() && text.back().isSpace())
        usedByWord_ = 0;
    return SplitsLineEnd(text, at) ? at - 1 : at;
}

// Cut first: in Thai and the like, the time of the finder grows with the square of the
// length. The words at the cut are longer than what may be shown of one.
QString DisplayBudget::Searched(const QString& text) const
{
    const int shown = std::max(0, std::min(maximum_, limits::kTextCost) - used_);
    return text.left(shown + limits::kWordCost);
}

bool DisplayBudget::Has(const Price& price)
{
    isExceeded_ = isExceeded_ || Cost() + price.inText + price.ofPictures > maximum_;
    return !isExceeded_ && used_ + price.inText <= limits::kTextCost;
}

DisplayBudget::Price DisplayBudget::PriceOfNext(uint character)
{
    marksInARow_ = IsMark(character) ? marksInARow_ + 1 : 0;
    Price price;
    price.inText = limits::kCharacterCost * (QChar::requiresSurrogates(character) ? 2 : 1);
    if (character == kZeroWidthJoiner) {
        price.inText += limits::kJoinerCost;
        return price;
    }
    if (StartsRun(character) || marksInARow_ > limits::kMarksOnALetter || EndsLine(character))
        price.inText += limits::kRunCost;
    const int picture = PictureCost(character);
    price.inText += picture;
    price.ofPictures = picture * (limits::kPicturesInSum - 1);
    return price;
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
