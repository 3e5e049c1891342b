#pragma once

#include <QChar>
#include <QString>

namespace kestro {

// How much more of a text may be laid out; see the display limit of TextItem.
class DisplayBudget {
public:
    // How many characters of the start of `text`, which continues what was
    // taken before, may be shown. Takes them.
    int Spend(const QString& text);

private:
    enum class Direction { Neutral, LeftToRight, RightToLeft, Number, Explicit };

    static Direction DirectionOf(uint character);

    int CostOfNext(uint character);
    bool StartsRun(uint character);

    int used_ = 0;
    int usedByWord_ = 0;
    int marksInARow_ = 0;
    QChar::Script script_ = QChar::Script_Unknown;
    Direction direction_ = Direction::Neutral;
};

} // namespace kestro
