#pragma once

#include <QChar>
#include <QString>

// How much more of a text may be laid out; see the display limit of TextItem.
class DisplayBudget {
public:
    // How many characters of the start of `text`, which continues what was
    // taken before, may be shown. Takes them.
    int Take(const QString& text);

private:
    enum class Order { Any, LeftToRight, RightToLeft, Number, Explicit };

    static Order orderOf(uint character);

    int CostOf(uint character);
    bool ChangesWriting(uint character);

    int used_ = 0;
    int usedByWord_ = 0;
    int marksInARow_ = 0;
    QChar::Script script_ = QChar::Script_Unknown;
    Order order_ = Order::Any;
};
