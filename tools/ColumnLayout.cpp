#include "ColumnLayout.h"

#include <algorithm>
#include <numeric>

namespace plix::tool {

ColumnLayout::ColumnLayout(const QVector<QSize>& cells, int maximumWidth)
    : cells_(cells)
    , widestFirst_(cells.size())
    , positions_(cells.size())
{
    std::iota(widestFirst_.begin(), widestFirst_.end(), 0);
    std::stable_sort(widestFirst_.begin(), widestFirst_.end(),
                     [&](int a, int b) { return cells.at(a).width() > cells.at(b).width(); });

    int totalHeight = 0;
    int minimumHeight = 0;
    for (const QSize& cell : cells) {
        totalHeight += cell.height();
        minimumHeight = std::max(minimumHeight, cell.height());
    }
    arrange(minimumHeight);
    for (int height = minimumHeight; size().width() > maximumWidth && height < totalHeight;) {
        // Small steps take time, large steps leave gaps. 2 percent is in between.
        height += height / 50 + 1;
        arrange(height);
    }
}

QSize ColumnLayout::size() const
{
    QSize size(0, 0);
    for (const Column& column : columns_)
        size = size.expandedTo({column.left + column.width, column.height});
    return size;
}

void ColumnLayout::arrange(int maximumHeight)
{
    columns_.clear();
    for (const int i : widestFirst_) {
        const QSize& cell = cells_.at(i);
        Column& column = columnFor(cell, maximumHeight);
        positions_[i] = {column.left, column.height};
        column.height += cell.height();
    }
}

ColumnLayout::Column& ColumnLayout::columnFor(const QSize& cell, int maximumHeight)
{
    const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const Column& c) {
        return c.height + cell.height() <= maximumHeight;
    });
    if (found != columns_.end())
        return *found;
    columns_.append({size().width(), cell.width(), 0});
    return columns_.last();
}

} // namespace plix::tool
