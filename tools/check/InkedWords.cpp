#include "check/InkedWords.h"

namespace plix::tool {
namespace {

// Which columns of some rows have a pixel that is not transparent.
QVector<bool> inkedColumns(const QImage& letters, int top, int bottom)
{
    QVector<bool> columns(letters.width(), false);
    for (int y = top; y < bottom; ++y) {
        const auto* const pixels = reinterpret_cast<const QRgb*>(letters.constScanLine(y));
        for (int x = 0; x < letters.width(); ++x)
            columns[x] = columns.at(x) || qAlpha(pixels[x]) > 0;
    }
    return columns;
}

void addWords(const QVector<bool>& columns, int top, int bottom, int gap, QVector<QRect>& words)
{
    int begin = -1;
    int end = -1; // the last column with ink
    for (int x = 0; x <= columns.size(); ++x) {
        if (x < columns.size() && columns.at(x)) {
            begin = begin < 0 ? x : begin;
            end = x;
        } else if (begin >= 0 && (x - end > gap || x == columns.size())) {
            // A full stop has too few pixels to tell its colour.
            if (end - begin > gap)
                words.append(QRect(QPoint(begin, top), QPoint(end, bottom - 1)));
            begin = -1;
        }
    }
}

} // namespace

QVector<QRect> inkedWords(const QImage& letters, int lines, int gap)
{
    QVector<QRect> words;
    for (int i = 0; i < lines; ++i) {
        const int top = letters.height() * i / lines;
        const int bottom = letters.height() * (i + 1) / lines;
        addWords(inkedColumns(letters, top, bottom), top, bottom, gap, words);
    }
    return words;
}

} // namespace plix::tool
