#include "view/ItemSelection.h"

#include "view/CardEditor.h"
#include "view/CardPreview.h"
#include "view/CardView.h"
#include "view/ItemDetails.h"
#include "view/ItemTree.h"
#include "view/TextPositions.h"

namespace plix::tool {

ItemSelection::ItemSelection(const ViewWidgets& widgets, const CardPreview& preview)
    : widgets_(widgets)
    , preview_(preview)
{
    connectItems();
    connect(widgets_.editor, &CardEditor::cursorPositionChanged, this, [this] {
        if (preview_.isCurrent() && widgets_.editor->hasFocus())
            selectAtCursor();
    });
}

void ItemSelection::connectItems()
{
    connect(widgets_.view, &CardView::hovered, this, [this](QGraphicsObject* item) {
        widgets_.items->mark(item);
        outline(item);
    });
    connect(widgets_.view, &CardView::picked, this, [this](QGraphicsObject* item) {
        widgets_.items->select(item);
        goToText(widgets_.items->selected());
    });
    connect(widgets_.items, &ItemTree::hovered, this, &ItemSelection::outline);
    connect(widgets_.items, &ItemTree::picked, this, &ItemSelection::goToText);
}

void ItemSelection::selectAtCursor()
{
    const TextPositions positions(preview_.text());
    widgets_.items->selectByte(positions.toByte(widgets_.editor->textCursor().position()));
    showItem(widgets_.items->selected());
}

void ItemSelection::goToText(const ShownItem* item)
{
    showItem(item);
    if (!item || !preview_.isCurrent())
        return;
    const TextPositions positions(preview_.text());
    const TextRange& range = item->source.node.range;
    widgets_.editor->selectRange(positions.toCharacter(range.begin),
                                 positions.toCharacter(range.end));
}

void ItemSelection::showItem(const ShownItem* item)
{
    widgets_.details->show(item, preview_.text());
    outline(nullptr);
}

void ItemSelection::outline(QGraphicsObject* item)
{
    const ShownItem* const selected = widgets_.items->selected();
    widgets_.view->setOutlined(item || !selected ? item : selected->object);
}

} // namespace plix::tool
