#pragma once

#include <QImage>
#include <QStringList>

namespace bench {

// Whether both hold the same characters in the same order, but for white space.
bool haveSameTexts(const QStringList& texts, const QStringList& otherTexts);

// How different two pictures look from afar, in percent: 0 for the same, 100 for
// black and white. What is finer than a line of text does not count.
double pictureDifference(const QImage& picture, const QImage& otherPicture);

} // namespace bench
