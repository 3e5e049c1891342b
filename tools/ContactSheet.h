#pragma once

#include "ColumnLayout.h"

#include <QImage>
#include <QString>
#include <QVector>

class QPainter;

namespace plix::tool {

// All pictures of a gallery on one, each at its logical size with its name
// above it.
class ContactSheet {
public:
    void add(const QString& name, const QImage& picture);

    QImage paint() const;

private:
    struct Entry {
        QString name;
        QImage thumbnail;
    };

    ColumnLayout columns() const;
    void paintEntry(QPainter& painter, const Entry& entry, const QPoint& place) const;

    QVector<Entry> entries_;
};

} // namespace plix::tool
