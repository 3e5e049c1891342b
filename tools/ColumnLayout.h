#pragma once

#include <QPoint>
#include <QSize>
#include <QVector>

namespace plix::tool {

// Stacks cells in columns, the widest cells in the first columns. The columns are
// as low as the maximum width allows.
class ColumnLayout {
public:
    ColumnLayout(const QVector<QSize>& cells, int maximumWidth);

    // The positions of the cells, in the order of the constructor's argument.
    const QVector<QPoint>& positions() const { return positions_; }
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
    QVector<QPoint> positions_;
};

} // namespace plix::tool
