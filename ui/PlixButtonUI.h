#pragma once

#include "ui/PlixOffsets.h"
#include "ui/PlixWidgetUI.h"

#include <kestro_control/KestroFontBindSupport.h>

#include <QColor>
#include <QFont>
#include <QPen>
#include <QString>

#include <memory>
#include <string>

class PlixButtonLine;
class PlixDataButton;

// A clickable label in one line, with or without a rounded plate behind it.
class PlixButtonUI : public PlixWidgetUI, public KestroFontBindSupport {
    Q_OBJECT
    Q_PROPERTY(QString label READ label)
    Q_PROPERTY(QString shownLabel READ shownLabel)
    Q_PROPERTY(double neededWidth READ neededWidth)
    Q_PROPERTY(QFont labelFont READ labelFont)

public:
    explicit PlixButtonUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout = nullptr);
    ~PlixButtonUI() override;

    bool Init() override;
    void SetClickFunc(const ClickFunc& func) override;
    void SetFrom(int from) override;

    QString PlainText() const override { return label_; }

    // Follows the host's font family while font binding is on.
    void FontChanged() override;

    QString label() const { return label_; }
    // The label as it is drawn: elided if the button is too narrow.
    QString shownLabel() const;
    // The smallest width of the button in which all of its label is drawn.
    double neededWidth() const;
    QFont labelFont() const { return font_; }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
    void setGeometry(const QRectF& rect) override;

protected:
    double CornerRadius() const override;
    // Also if its action is unavailable: no click goes through a button to the box
    // below.
    bool AcceptsPresses() const override { return true; }

    void resizeEvent(QGraphicsSceneResizeEvent* event) override;

private:
    void InitLabel(const PlixDataButton& data);
    void InitShownPart();
    void InitMouse();
    void InitLook(const PlixDataButton& data);
    void InitFont(PlixDataButton& data);
    void InitSize(const PlixDataButton& data, bool isInRow);
    void ApplyLabelWidth();
    void PaintPlateAndLabel(QPainter& painter);

    bool actionUnavailable_ = false;
    QString label_;
    // What is shown of it, if the button is wide enough.
    QString shownPart_;
    QPen textPen_ {Qt::black};
    QFont font_;
    // The shown label. Made by the first paint after a change.
    std::unique_ptr<PlixButtonLine> line_;
    // Empty: no plate.
    std::string plateColor_;
    bool hasLabelWidth_ = false;
    bool geometryPending_ = true;
    // Percentages are resolved when the button is placed for the first time.
    PlixOffsets offsets_;
    int from_ = 0;
};
