#pragma once

#include "layout/YogaLayoutItem.h"
#include "ui/PlixBaseUI.h"
#include "ui/PlixCardClip.h"

#include <kestro_control/TextItem.h>

#include <QPointer>

#include <vector>

class PlixDataBox;
class PlixDataSpan;
class PlixDataText;
class PlixFocusStop;

// The "text" component: a text in one format, or in spans.
class PlixTextUI : public TextItem, public YogaLayoutItem, public PlixBaseUI {
    Q_OBJECT
    Q_PROPERTY(double neededWidth READ neededWidth)

public:
    PlixTextUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout,
               const PlixDisplayParam& param);
    ~PlixTextUI() override;

    QGraphicsItem* GetGraphicsItem() override { return this; }
    QGraphicsLayoutItem* GetLayoutItem() override { return this; }
    YogaLayoutItem* GetYogaItem() override { return this; }

    bool Init() override;
    void SetClickFunc(const ClickFunc& func) override;
    void SetFrom(int from) override;
    QString PlainText() const override { return toPlainText(); }

    // In whole pixels: the smallest width in which no line is broken or elided.
    double neededWidth() const;

    // Where the Tab key stops. One for the text if it has an action, else one for each
    // mention. A hidden one is skipped; the host may have deleted others.
    const std::vector<QPointer<PlixFocusStop>>& FocusStops() const { return focusStops_; }

    // True shows the pointing-hand cursor; false changes nothing.
    void setClickable(bool on) override;

    // 1 if the text contains one of the words, even where it is elided; else -1.
    int setHighlightText(const QStringList& words) override;
    int SetHighLightText(const QStringList& words) { return setHighlightText(words); }

    // Follows the host's font family while font binding is on. The text is drawn in
    // it at once, inside its rectangle; the next layout changes the rectangle.
    void FontChanged() override;

    // A wrapped text that is measured at width 0 loses its content.
    QSizeF measure(double width, YGMeasureMode widthMode, double height,
                   YGMeasureMode heightMode) override;
    float baseline(double width, double height) override;

    QSizeF sizeHint(Qt::SizeHint which, const QSizeF& constraint = QSizeF()) const override;
    void setGeometry(const QRectF& rect) override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;

private Q_SLOTS:
    void OnMentionClicked(qint64 userNo);
    void OnBotMentionClicked(qint64 userNo);
    void OnFontChanged();

private:
    // Where the text stands in its card.
    struct Place {
        std::shared_ptr<PlixDataBox> box; // null at the top of a zone
        bool isInRow = false;
        bool isRightToLeft = false;
    };

    void InitWrapMode();
    void InitColor(const PlixDataText& data);
    void InitAction(const PlixDataText& data);
    void InitFont(PlixDataText& data);
    void InitAlignment(const PlixDataText& data, const Place& place);
    void InitGravity(const PlixDataText& data, const Place& place);
    // Within what the texts of the card may cost together.
    void InsertWithinBudget(const PlixDataText& data);
    void InsertContent(const PlixDataText& data);
    void InitWidth(const PlixDataText& data, const Place& place);
    void InitLines(const PlixDataText& data);
    void InitFocus();
    void KeepSides(const PlixDataText& data, const Place& place);
    // The width of the text without any limit, in whole pixels.
    double NaturalWidth();
    double NaturalWidthOfFirstLine();
    // Whether `text` must be escaped so that it is shown literally.
    bool NeedsEscaping(const QString& text) const;

    // Every insertion ends here. A null format: the item's own.
    void InsertText(const std::string& text, const QTextCharFormat* format = nullptr);
    void InsertSpan(const PlixDataSpan& span);

    // Shows only the lines that fit, until the next layout.
    void LimitLinesToRectangle();
    // The parent's width inside its paddings; 0 while it is not known.
    double ParentInnerWidth() const;
    QRectF ClippedToParent(const QRectF& rect) const;
    bool HasStyleWidth(double width) const;
    std::optional<PlixCardCut> CutByCard() const;
    void PlaceVertically(double available, int lineHeight);
    // For an item at `position`. Slots of the host may delete the text.
    void PlaceFocusStops(const QPointF& position);

    bool unsupported_ = false;
    int colorMode_ = 0;
    bool baseline_ = false;
    bool wrap_ = false;
    int maxLines_ = 0;
    bool hasNaturalWidth_ = false;
    // The share of the free height that lies above the text.
    double shareAbove_ = 0;
    int textHeight_ = 0;
    // From the top of the item's rectangle down to the item.
    double topOffset_ = 0;
    std::vector<QPointer<PlixFocusStop>> focusStops_;
};
