#pragma once

#include "ui/PlixWidgetUI.h"

#include <QBrush>

#include <string>

class PlixDataContainer;
struct PlixZoneStyle;

// The card itself: a column of zones on a rounded background.
//
// Qt can clip items to the outline, but then every paint inside of it is slow: it is
// no rectangle. So while the card is in a scene, the items that paint over the outline
// clip themselves (see PlixCardClip), unless the host has added items of its own.
class PlixBubbleUI : public PlixWidgetUI {
    Q_OBJECT
    Q_PROPERTY(QString plainText READ PlainText)

public:
    explicit PlixBubbleUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
    void SetFrom(int from) override;
    void setFrom(int mode) { SetFrom(mode); }
    void addChild(YogaLayoutItem* child) override;
    int setHighlightText(const QStringList& words) override;
    QString PlainText() const override;

    // Gives the zones the backgrounds and separators of their styles. To be called
    // when the items of the zones have been added.
    void arrangeZones();

    // Lasts until resumeBackgroundColor(). `color` is read by plix::ToColor().
    void setBackgroundColor(const std::string& color);
    void resumeBackgroundColor();

    // Makes the body higher, so that the card is `height` pixels high after the next
    // layout. 0 on success, or if the card is that high already. -1 without a body:
    // the card has none, or the host has deleted its item.
    int modifyHeight(int height);

    // Whether `item` is a card that does not let Qt clip its items.
    static bool LeavesClippingToItems(const QGraphicsItem& item);

    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;
    void resizeEvent(QGraphicsSceneResizeEvent* event) override;

private:
    void LetQtClip(bool on);
    bool HasOnlyItemsOfTheCard() const;
    // How many child items belong to `zone`, counted from `index`. A data item that
    // is not drawn has none.
    int ShownItems(const PlixDataContainer& zone, int index) const;
    void FillBackground(int index, const PlixZoneStyle& style);
    void InsertSeparator(int index, const PlixZoneStyle& style);

    QBrush background_;
    PlixLink<YogaLayoutItem> bodyItem_;
    int from_ = 0;
};
