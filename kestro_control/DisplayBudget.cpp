#include "DisplayBudget.h"

#include "CodePoint.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace kestro {

namespace {

constexpr int kMaximumCost = 16000;
constexpr int kMaximumWordCost = 2000;

constexpr int kCharacterCost = 1;
constexpr int kExtraCost = 8;
constexpr int kJoinerCost = 40;

// The number of marks on one letter that is usual in living languages.
constexpr int kOrdinaryMarks = 2;

// The emoji sequences that it joins are slow to shape.
constexpr uint kZeroWidthJoiner = 0x200D;

// Texts up to this length are fast to lay out, whatever their characters are.
constexpr int kHarmlessLength = kMaximumWordCost / (kCharacterCost + kExtraCost);

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
    used_ += kExtraCost;
    if (used_ + text.size() <= kHarmlessLength) {
        used_ += text.size();
        usedByWord_ += text.size();
        return text.size();
    }

    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
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
        if (used_ + cost > kMaximumCost || usedByWord_ + cost > kMaximumWordCost)
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
        return kCharacterCost + kJoinerCost;
    const bool isExtra =
        StartsRun(character) || marksInARow_ > kOrdinaryMarks || EndsLine(character);
    return kCharacterCost + (isExtra ? kExtraCost : 0);
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
