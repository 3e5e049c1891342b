#pragma once

#include "ui/PlixWidgetUI.h"

#include <QColor>

#include <optional>
#include <string>

// A line, one pixel thick, across its box or between two zones of a bubble.
class PlixSeparatorUI : public PlixWidgetUI {
    Q_OBJECT

public:
    explicit PlixSeparatorUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);

    bool Init() override;

    // An empty text changes nothing.
    void setColor(const std::string& color);

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    std::optional<QColor> color_;
};
