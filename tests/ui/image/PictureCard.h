#pragma once

#include "support/PlixTest.h"

#include <QByteArray>
#include <QColor>
#include <QGraphicsScene>
#include <QImage>
#include <QTemporaryDir>

namespace plix::test {

// Files that a host has downloaded, gone with the test.
class PictureFolder {
public:
    // Writes the file, which may be there already. The path of it.
    std::string write(const std::string& name, const QByteArray& bytes) const;
    std::string path(const std::string& name) const;

private:
    QTemporaryDir folder_;
};

// A card around `contents`, JSON members of a vertical box without insets, 300
// pixels wide. The host has downloaded every URL to the file of that path, and
// the URLs are remembered.
class PictureCard {
public:
    explicit PictureCard(const std::string& contents, const std::string& more = {}, float dpi = 1);

    const TestCard& card() const { return card_; }
    // The n-th thing of the box.
    QGraphicsItem& item(int n = 0) const { return *card_.item({0, n}); }
    const std::vector<std::string>& asked() const { return asked_; }

    // The card as a view scaled by `scale` shows it on white.
    QImage paint(double scale = 1) const;
    // A pixel of the card, painted now.
    QColor at(double x, double y) const { return paint().pixelColor(int(x), int(y)); }

private:
    std::vector<std::string> asked_;
    TestCard card_;
};

// An image or icon that names a file; `more` are further members, each followed
// by a comma.
std::string image(const std::string& path, const std::string& more = {});
std::string icon(const std::string& path, const std::string& more = {});

// So many of a component, separated by commas.
std::string list(int count, const std::string& component);

// A picture of one colour.
QImage filled(const QSize& size, const QColor& color);
// Every pixel another colour than those beside it.
QImage noise(const QSize& size);
// The smallest rectangle around the pixels of this colour.
QRect areaOf(const QImage& image, const QColor& color);

// What Qt's decoders complain about, instead of failing the test.
class QtMessagesIgnored {
public:
    QtMessagesIgnored();
    ~QtMessagesIgnored();

    QtMessagesIgnored(const QtMessagesIgnored&) = delete;
    QtMessagesIgnored& operator=(const QtMessagesIgnored&) = delete;

    // Since then.
    static int count();

private:
    QtMessageHandler before_;
};

} // namespace plix::test
