#include "Graphemes.h"

#include <QTextBoundaryFinder>

namespace kestro {

std::vector<int> GraphemeBoundaries(const QString& text)
{
    std::vector<int> boundaries {0};
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int at = finder.toNextBoundary(); at > 0; at = finder.toNextBoundary())
        boundaries.push_back(at);
    return boundaries;
}

} // namespace kestro
