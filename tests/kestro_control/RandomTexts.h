#pragma once

#include <QFont>
#include <QString>
#include <QTextCharFormat>
#include <QTextOption>

#include <random>

// Texts in all scripts and formats, the same for the same seed.
class RandomTexts {
public:
    explicit RandomTexts(unsigned seed)
        : engine_(seed)
    {
    }

    // From 0 to `count` - 1.
    int number(int count);
    bool oneIn(int count) { return number(count) == 0; }

    QString text();
    // Often without any property.
    QTextCharFormat format();
    QFont font();
    // Negative, zero, too small for a letter, usual, or more than any text needs.
    qreal width();
    QTextOption::WrapMode wrapMode();
    Qt::Alignment alignment();
    Qt::LayoutDirection direction();

private:
    std::mt19937 engine_;
};
