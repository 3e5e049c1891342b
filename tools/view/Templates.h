#pragma once

#include <QString>

#include <vector>

namespace plix::tool {

// A card to begin with.
struct CardTemplate {
    QString title;
    QString resource; // its file
};

struct TemplateGroup {
    QString title;
    std::vector<CardTemplate> cards;
};

// The cards of the guide for authors, and the example cards. They are part of the program.
std::vector<TemplateGroup> templateGroups();

QString templateText(const CardTemplate& card);

// A card with one text.
QString emptyCard();

} // namespace plix::tool
