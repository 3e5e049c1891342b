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
    int Number(int count);
    bool OneIn(int count) { return Number(count) == 0; }

    QString Text();
    // Often without any property.
    QTextCharFormat Format();
    QFont Font();
    // Negative, zero, too small for a letter, usual, or more than any text needs.
    qreal Width();
    QTextOption::WrapMode WrapMode();
    Qt::Alignment Alignment();
    Qt::LayoutDirection Direction();

private:
    std::mt19937 engine_;
};
