#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <map>

namespace plix::tool {

// The guide for authors of cards, docs/cards.md. It is made from a template in which a
// line such as
//     {{keys box}}
// stands for a table of the format, and
//     {{card recipes/centring}}
// for a card of the folder docs/cards: its picture, and its JSON.
class CardGuide {
public:
    // The folder of the documents, and that of the pictures that the cards name. Throws
    // ToolError if the template or a card cannot be read, or if a line stands for
    // nothing.
    CardGuide(const QString& documents, const QString& images);

    const QString& text() const { return text_; }

    // The names of the cards, in their order in the guide.
    const QStringList& cards() const { return cards_; }

    // The card in `kPictureScale` device pixels per logical pixel.
    QImage picture(const QString& card) const;

    QString textPath() const;
    QString cardPath(const QString& card) const;
    QString picturePath(const QString& card) const;

    static constexpr double kPictureScale = 2;

private:
    void expand(const QString& source);
    QString expandLine(const QString& line);
    QString expandCard(const QString& card);

    QString documents_;
    QString images_;
    QString text_;
    QStringList cards_;
    std::map<QString, QImage> pictures_;
};

} // namespace plix::tool
