#pragma once

#include <functional>

class QGraphicsSceneContextMenuEvent;
class QWidget;
class TextItem;

namespace kestro {

// Opens the context menu of a read-only text: "Copy" and "Select All". If the text cannot be
// selected with the mouse, it is copied whole. The words are those of Qt's own texts, so
// that Qt's translations apply. `selectAll` is called with the viewport of the event. It is
// not called after the end of the item.
void ShowTextMenu(TextItem& item, const QGraphicsSceneContextMenuEvent& event,
                  const std::function<void(QWidget*)>& selectAll);

} // namespace kestro
