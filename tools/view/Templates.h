#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace plix::tool {

// A card to begin with.
struct CardTemplate {
    QString title;
    QString resource; // its file
};

// The example cards, which are part of the program.
std::vector<CardTemplate> cardTemplates();

QString templateText(const CardTemplate& card);

// A card with one text.
QString emptyCard();

} // namespace plix::tool
