#pragma once

#include <QHash>
#include <QImage>
#include <QString>

namespace bench {

// Picture files, each decoded once and kept in the sizes that are shown.
class DecodedPictures {
public:
    // The file in this size. What does not fit in at one pair of edges is cut.
    const QImage& scaled(const QString& file, const QSize& size);

private:
    QHash<QString, QImage> decoded_;
    QHash<QString, QImage> scaled_;
};

} // namespace bench
