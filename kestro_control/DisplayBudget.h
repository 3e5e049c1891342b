#pragma once

#include <QChar>
#include <QString>

#include <limits>

namespace kestro {

// Counts the cost of a text up to the display limit that TextItem.h describes.
class DisplayBudget {
public:
    DisplayBudget() = default;
    // `maximum`: that of Cost().
    explicit DisplayBudget(int maximum)
        : maximum_(maximum)
    {
    }

    // Returns how many characters of the start of `text` may be shown, and spends
    // their cost. `text` continues the text of the earlier calls.
    int Spend(const QString& text);

    // The cost of what may be shown. Pictures count in full.
    int Cost() const { return used_ + pictures_; }
    int Maximum() const { return maximum_; }
    void SetMaximum(int maximum) { maximum_ = maximum; }
    // Whether the maximum was too low for a text.
    bool IsExceeded() const { return isExceeded_; }

private:
    enum class Direction { Neutral, LeftToRight, RightToLeft, Number, Explicit };

    static Direction DirectionOf(uint character);

    // The start of `text`, with all that may be shown of it.
    QString Searched(const QString& text) const;
    struct Price {
        int inText = 0;
        // What Cost() has in addition.
        int ofPictures = 0;
    };

    // Whether so much is left.
    bool Has(const Price& price);

    // These remember `character` for the next call.
    Price PriceOfNext(uint character);
    bool StartsRun(uint character);

    int maximum_ = std::numeric_limits<int>::max();
    bool isExceeded_ = false;
    int used_ = 0;
    int pictures_ = 0;
    // Of all texts, where a call counts as a run.
    int length_ = 0;
    int usedByWord_ = 0;
    int marksInARow_ = 0;
    QChar::Script script_ = QChar::Script_Unknown;
    Direction direction_ = Direction::Neutral;
};

} // namespace kestro
