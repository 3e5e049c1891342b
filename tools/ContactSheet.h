#pragma once

#include "ColumnLayout.h"

#include <QImage>
#include <QPoint>
#include <QString>
#include <QVector>

class QPainter;

namespace plix::tool {

// One picture with all pictures of a gallery, each in its logical size and below
// its name.
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
    void paintEntry(QPainter& painter, const Entry& entry, const QPoint& position) const;

    QVector<Entry> entries_;
};

} // namespace plix::tool
