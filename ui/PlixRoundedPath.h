#pragma once

#include <QPainterPath>
#include <QRectF>

// A rounded rectangle whose corners take up its whole height at most.
QPainterPath RoundedPath(const QRectF& rect, int radius);
