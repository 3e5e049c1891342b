#pragma once

#include "ui/PlixWidgetUI.h"

#include <QBrush>

#include <string>

class PlixDataContainer;
struct PlixZoneStyle;

// The card itself: a column of zones on a rounded ground.
class PlixBubbleUI : public PlixWidgetUI {
    Q_OBJECT

public:
    explicit PlixBubbleUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
    void SetFrom(int from) override;
    void setFrom(int mode) { SetFrom(mode); }
    void addChild(YogaLayoutItem* child) override;
    int setHighlightText(const QStringList& words) override;

    // Once the zones' items are there: gives them the grounds of the zone
    // styles and puts separators between them.
    void arrangeZones();

    // Until resumed. The colour rules are those of ToColor.
    void setBackgroundColor(const std::string& color);
    void resumeBackgroundColor();

    // Grows the body until the card is `height` pixels high, from the next
    // layout on. 0 when done or already high enough, -1 without a body, as
    // when the host has deleted its item.
    int modifyHeight(int height);

    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    // How many items, from `index` on, belong to `zone`. Data that is not
    // drawn has no item.
    int ShownItems(const PlixDataContainer& zone, int index) const;
    void FillBackground(int index, const PlixZoneStyle& style);
    void InsertSeparator(int index, const PlixZoneStyle& style);

    QBrush background_;
    PlixLink<YogaLayoutItem> bodyItem_;
    int from_ = 0;
};
