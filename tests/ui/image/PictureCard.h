#pragma once

#include "support/PlixTest.h"

#include <QByteArray>
#include <QColor>
#include <QGraphicsScene>
#include <QImage>
#include <QTemporaryDir>

namespace plix::test {

// A folder of files that a host has downloaded. It is deleted with this object.
class PictureFolder {
public:
    // Writes the file, which may exist, and returns its path.
    std::string write(const std::string& name, const QByteArray& bytes) const;
    std::string path(const std::string& name) const;

private:
    QTemporaryDir folder_;
};

// A card of 300 pixels that is a vertical box without insets. `contents` is the JSON of its
// items. Each URL in it is the path of a file that the host has downloaded.
class PictureCard {
public:
    explicit PictureCard(const std::string& contents, const std::string& more = {}, float dpi = 1);

    const TestCard& card() const { return card_; }
    // The n-th item of the box.
    QGraphicsItem& item(int n = 0) const { return *card_.item({0, n}); }
    // The URLs of all downloads, in order.
    const std::vector<std::string>& downloads() const { return downloads_; }

    // The card on white, as a view scaled by `scale` shows it.
    QImage paint(double scale = 1) const;
    // A pixel of the card, painted now.
    QColor at(double x, double y) const { return paint().pixelColor(int(x), int(y)); }

private:
    std::vector<std::string> downloads_;
    TestCard card_;
};

// An image or icon that names a file; `more` are further members, each followed
// by a comma.
std::string image(const std::string& path, const std::string& more = {});
std::string icon(const std::string& path, const std::string& more = {});

// A component `count` times, separated by commas.
std::string list(int count, const std::string& component);

// A picture of one colour.
QImage filled(const QSize& size, const QColor& color);
// A picture in which each pixel has another colour than its neighbours.
QImage noise(const QSize& size);
// The smallest rectangle around the pixels of this colour.
QRect areaOf(const QImage& image, const QColor& color);

// While it lives, messages of Qt are counted and do not fail the test.
class QtMessagesIgnored {
public:
    QtMessagesIgnored();
    ~QtMessagesIgnored();

    QtMessagesIgnored(const QtMessagesIgnored&) = delete;
    QtMessagesIgnored& operator=(const QtMessagesIgnored&) = delete;

    // The number of messages since the constructor.
    static int count();

private:
    QtMessageHandler before_;
};

} // namespace plix::test
