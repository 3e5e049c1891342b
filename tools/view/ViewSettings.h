#pragma once

#include "Options.h"

#include <QString>

class QSettings;

namespace plix::tool {

// What the user has set for the cards in the window.
struct ViewSettings {
    CardOptions card;
    // The family of the host's font; that of the application if empty.
    QString fontFamily;
    bool isDark = false;
    // The width of the chat in logical pixels; 0 if it is wide enough for every card.
    int windowWidth = 0;
    // Whether pictures that are not in the folder are fetched.
    bool usesNetwork = false;
};

// Whether a card must be built again after the change from `a` to `b`.
bool needsNewCard(const ViewSettings& a, const ViewSettings& b);

// The settings of the last session, replaced by those that are given on the command
// line. The network is never remembered: it must be switched on each time.
ViewSettings loadSettings(const QSettings& store, const CardOptions& given);
void saveSettings(QSettings& store, const ViewSettings& settings);

} // namespace plix::tool
