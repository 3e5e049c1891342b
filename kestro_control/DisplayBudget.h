#pragma once

#include <QChar>
#include <QString>

namespace kestro {

// Counts the cost of a text up to the display limit that TextItem.h describes.
class DisplayBudget {
public:
    // Returns how many characters of the start of `text` may be shown, and spends
    // their cost. `text` continues the text of the earlier calls.
    int Spend(const QString& text);

private:
    enum class Direction { Neutral, LeftToRight, RightToLeft, Number, Explicit };

    static Direction DirectionOf(uint character);

    // These remember `character` for the next call.
    int CostOfNext(uint character);
    bool StartsRun(uint character);

    int used_ = 0;
    int usedByWord_ = 0;
    int marksInARow_ = 0;
    QChar::Script script_ = QChar::Script_Unknown;
    Direction direction_ = Direction::Neutral;
};

} // namespace kestro
