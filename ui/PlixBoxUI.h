#pragma once

#include "ui/PlixWidgetUI.h"

#include <QBrush>
#include <QPen>

#include <optional>

class PlixDataBox;

// A container that lays its children out in a column, in a row, or in a row
// aligned on the texts' baselines.
class PlixBoxUI : public PlixWidgetUI {
    Q_OBJECT

public:
    explicit PlixBoxUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;
    void SetClickFunc(const ClickFunc& func) override;

    void addChild(YogaLayoutItem* child) override;
    int setHighlightText(const QStringList& words) override;
    QString PlainText() const override;
    // True shows the pointing-hand cursor in the whole box; false changes nothing.
    void setClickable(bool on) override;
    void inheritCornerRadius(int radius) override;

    bool HasBackground() const { return background_.has_value(); }
    void SetBackground(const QColor& color);

    // Handles a release that a child does not handle: delivers the box's own action,
    // or passes the event on to the box around it.
    void HandleReleaseInside(QGraphicsSceneMouseEvent* event);

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    double CornerRadius() const override { return cornerRadius_; }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    void InitMouse(const PlixDataBox& data);
    void InitDirection(const PlixDataBox& data);
    void InitSize(const PlixDataBox& data);
    void InitBorder(const PlixDataBox& data);
    void InitPaddings(const PlixDataBox& data);
    void InitPercentSize(const PlixDataBox& data);
    void ApplySpacing(YogaLayoutItem& child);
    void PaintClipped(QPainter& painter, const QRectF& exposed) const;
    void PaintOnWholePixels(QPainter& painter) const;
    void PaintBackground(QPainter& painter, const QRectF& exposed) const;
    void PaintBorder(QPainter& painter) const;
    QPainterPath RoundedBorderPath() const;

    bool clickOwnedAbove_ = false;
    std::optional<QBrush> background_;
    bool horizontal_ = false;
    bool baseline_ = false;
    bool rightToLeft_ = false;
    int grow_ = 0;
    std::optional<QPen> border_;
    int cornerRadius_ = -1;
    int spacing_ = 0;
    int borderWidth_ = 0;
};
