#pragma once

#include "ui/PlixWidgetUI.h"

#include <QBrush>

#include <memory>
#include <optional>

class PlixDataItemCommon;
class PlixPicture;

// What images and icons have in common: a picture of the web over a background,
// in the size that the layout gives it.
class PlixPictureUI : public PlixWidgetUI {
    Q_OBJECT
    Q_PROPERTY(QString pictureFile READ pictureFile)

public:
    void SetDownloadFunc(const DownloadFunc& func) override;
    void inheritCornerRadius(int radius) override;

    // The picture is in this file, or will be; what was shown before is not
    // shown any more.
    void FileArrived(const std::string& path);
    QString pictureFile() const;

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

public Q_SLOTS:
    // FileArrived() for hosts, who reach it by its name.
    void OnFileArrived(const QString& path);

protected:
    // How a picture of other proportions than the item's is shown.
    enum class AspectMode {
        Fit, // all of it
        Cover // its middle, filling the item
    };
    // Where the free space around a fitting picture goes: all of it to the
    // far side (0) or to the near one (1).
    struct Placement {
        double x = 0.5;
        double y = 0.5;
    };

    PlixPictureUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout);

    // Asks the host for the file, if it takes questions.
    void Download(const std::string& url);
    // What the data of images and icons says alike.
    void InitCommon(const PlixDataItemCommon& data);

    // The width to draw at, where the item is wider. Not positive: all of it.
    void SetFixedWidth(double width) { fixedWidth_ = width; }
    void SetAspectMode(AspectMode mode) { aspectMode_ = mode; }
    void SetPlacement(const Placement& placement) { placement_ = placement; }
    void SetBackground(const std::string& color);

private:
    void PaintBackground(QPainter& painter) const;
    void PaintPicture(QPainter& painter);
    QRectF DrawingArea(const QSize& picture) const;
    double DpiFactor() const;

    DownloadFunc downloadFunc_;
    std::shared_ptr<PlixPicture> picture_; // null before a file is named
    AspectMode aspectMode_ = AspectMode::Fit;
    Placement placement_;
    std::optional<QBrush> background_;
    double fixedWidth_ = 0;
    int cornerRadius_ = 0;
};
