#include "DisplayBudget.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

constexpr int limit = 16000;
constexpr int wordLimit = 2000;

constexpr int characterCost = 1;
constexpr int extraCost = 8;
constexpr int joinerCost = 40;

// That many on a letter are still common in living languages.
constexpr int cheapMarks = 2;

// Fonts take long over the emoji that it joins.
constexpr uint zeroWidthJoiner = 0x200D;

// Texts of no more characters have no need of being looked at closely.
constexpr int harmlessLength = wordLimit / (characterCost + extraCost);

uint codePointAt(const QString& text, int at)
{
    const QChar character = text.at(at);
    if (character.isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(character, text.at(at + 1));
    return character.unicode();
}

bool endsLine(uint character)
{
    return character == '\n' || character == '\r' || character == QChar::ParagraphSeparator
        || character == QChar::LineSeparator;
}

bool isMark(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
}

// The scripts of Chinese and Japanese as one: they change all the time, and
// lines break anywhere between them.
QChar::Script scriptOf(uint character)
{
    const QChar::Script script = QChar::script(character);
    return script == QChar::Script_Hiragana || script == QChar::Script_Katakana ? QChar::Script_Han
                                                                                : script;
}

} // namespace

DisplayBudget::Order DisplayBudget::orderOf(uint character)
{
    switch (QChar::direction(character)) {
    case QChar::DirL:
        return Order::LeftToRight;
    case QChar::DirR:
    case QChar::DirAL:
        return Order::RightToLeft;
    case QChar::DirEN:
    case QChar::DirAN:
        return Order::Number;
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return Order::Explicit;
    default:
        return Order::Any;
    }
}

int DisplayBudget::Take(const QString& text)
{
    used_ += extraCost;
    if (used_ + text.size() <= harmlessLength) {
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
        const uint character = codePointAt(text, at);
        const int length = QChar::requiresSurrogates(character) ? 2 : 1;
        const int cost = CostOf(character) + length - 1;
        if (used_ + cost > limit || usedByWord_ + cost > wordLimit)
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

int DisplayBudget::CostOf(uint character)
{
    marksInARow_ = isMark(character) ? marksInARow_ + 1 : 0;
    if (character == zeroWidthJoiner)
        return characterCost + joinerCost;
    const bool isExtra =
        ChangesWriting(character) || marksInARow_ > cheapMarks || endsLine(character);
    return characterCost + (isExtra ? extraCost : 0);
}

// Whether the text engine divides the text in front of the character.
// Characters that go with any script or direction do not matter.
bool DisplayBudget::ChangesWriting(uint character)
{
    const QChar::Script script = scriptOf(character);
    const bool changesScript = script > QChar::Script_Common && script != script_;
    if (changesScript)
        script_ = script;

    const Order order = orderOf(character);
    const bool changesOrder = order != Order::Any && (order != order_ || order == Order::Explicit);
    if (changesOrder)
        order_ = order;
    return changesScript || changesOrder;
}
