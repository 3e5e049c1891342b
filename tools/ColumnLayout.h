#pragma once

#include <QPoint>
#include <QSize>
#include <QVector>

namespace plix::tool {

// Cells stacked in columns, the widest cells in the first ones, with the lowest
// columns that stay within a given width.
class ColumnLayout {
public:
    ColumnLayout(const QVector<QSize>& cells, int maximumWidth);

    // The places of the cells, in the order they were given.
    const QVector<QPoint>& places() const { return places_; }
    QSize size() const;

private:
    struct Column {
        int left;
        int width;
        int height;
    };

    void arrange(int maximumHeight);
    Column& columnFor(const QSize& cell, int maximumHeight);

    QVector<QSize> cells_;
    QVector<int> widestFirst_;
    QVector<Column> columns_;
    QVector<QPoint> places_;
};

} // namespace plix::tool
