#pragma once

namespace plix::tool {

class CardEditor;
class CardView;
class EventPane;
class FolderList;
class ItemDetails;
class ItemTree;
class MessageBar;
class ProblemList;
class SettingsPanel;

// What the window consists of. The window owns them once they are in their panes.
struct ViewWidgets {
    CardEditor* editor;
    CardView* view;
    ItemTree* items;
    ItemDetails* details;
    SettingsPanel* settings;
    ProblemList* problems;
    EventPane* events;
    FolderList* folder;
    MessageBar* fileBar; // about the file
    MessageBar* cardBar; // about the card
};

// `hasNetwork`: whether pictures can be fetched from the network.
ViewWidgets makeViewWidgets(bool hasNetwork);

} // namespace plix::tool
