#pragma once

#include "model/format/PlixWords.h"
#include "ui/PlixWidgetUI.h"
#include "ui/image/PlixShownPicture.h"

#include <QBrush>

#include <optional>

class PlixDataItemCommon;
class PlixPictureWork;

// Base of images and icons: a picture from the web over a background, in the size
// that the layout gives the item.
class PlixPictureUI : public PlixWidgetUI {
    Q_OBJECT
    Q_PROPERTY(QString pictureFile READ pictureFile)

public:
    void SetDownloadFunc(const DownloadFunc& func) override;
    void inheritCornerRadius(int radius) override;

    // Shows the picture in this file, which need not exist yet, instead of the one
    // before.
    void FileArrived(const std::string& path);
    QString pictureFile() const;

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

public Q_SLOTS:
    // FileArrived() for hosts, which call this slot by name.
    void OnFileArrived(const QString& path);

protected:
    // The share of the free space around a fitting picture that is left of it, and
    // above it.
    struct Placement {
        double x = 0.5;
        double y = 0.5;
    };

    PlixPictureUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout);

    double CornerRadius() const override { return cornerRadius_; }

    // Gets the file from the host, if there is a download function.
    void Download(const std::string& url);
    // The part of Init() that images and icons have in common.
    void InitCommon(const PlixDataItemCommon& data);

    // The width of the picture if the item is wider. 0 or less: the item's width.
    void SetFixedWidth(double width) { fixedWidth_ = width; }
    void SetAspectMode(PlixAspectMode mode) { aspectMode_ = mode; }
    void SetPlacement(const Placement& placement) { placement_ = placement; }
    void SetBackground(const std::string& color);

private:
    void PaintBackground(QPainter& painter) const;
    void PaintPicture(QPainter& painter, PlixPictureWork& work);
    QRectF DrawingArea(const QSize& picture) const;
    double DpiFactor() const;

    DownloadFunc downloadFunc_;
    PlixShownPicture picture_; // none before a file is named
    PlixAspectMode aspectMode_ = PlixAspectMode::Fit;
    Placement placement_;
    std::optional<QBrush> background_;
    double fixedWidth_ = 0;
    int cornerRadius_ = 0;
};
