#include "ui/image/PlixPictureUI.h"

#include "api/PlixCatchExceptions.h"
#include "api/PlixDataMgr.h"
#include "api/PlixLog.h"
#include "layout/PlixStyleValues.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataItemCommon.h"
#include "ui/PlixCardClip.h"
#include "ui/PlixOffsets.h"
#include "ui/PlixPaths.h"
#include "ui/image/PlixPicturePainter.h"
#include "ui/image/PlixPictureWork.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

PlixPictureUI::PlixPictureUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
{
}

void PlixPictureUI::SetDownloadFunc(const DownloadFunc& func)
{
    downloadFunc_ = func;
}

void PlixPictureUI::Download(const std::string& url)
{
    // If the host throws, only this picture is missing and not the whole card.
    if (downloadFunc_)
        plix::CatchExceptions([&] { FileArrived(downloadFunc_(url)); }, &plix::LogFailedBuild);
}

void PlixPictureUI::FileArrived(const std::string& path)
{
    OnFileArrived(QString::fromStdString(path));
}

void PlixPictureUI::OnFileArrived(const QString& path)
{
    if (picture_.Get())
        disconnect(picture_.Get().get(), nullptr, this, nullptr);
    picture_.Set(path.isEmpty() ? nullptr : PlixPicture::Get(path));
    if (picture_.Get())
        connect(picture_.Get().get(), &PlixPicture::FrameChanged, this, [this] {
            picture_.Forget();
            update();
        });
    update();
}

QString PlixPictureUI::pictureFile() const
{
    return picture_.Get() ? picture_.Get()->FileName() : QString();
}

void PlixPictureUI::InitCommon(const PlixDataItemCommon& data)
{
    setGrowFactor(data.GetGrow());
    ApplyPlacement(data, plix::IsInVerticalBox(data)).ApplyPercentages(*this);
}

void PlixPictureUI::SetBackground(const std::string& color)
{
    if (!color.empty())
        background_.emplace(plix::ToColor(color), Qt::SolidPattern);
}

void PlixPictureUI::inheritCornerRadius(int radius)
{
    cornerRadius_ = std::max(cornerRadius_, radius);
}

double PlixPictureUI::DpiFactor() const
{
    const PlixDataMgr* manager = Manager();
    const double dpi = manager ? static_cast<double>(manager->GetDpi()) : 1;
    return std::isfinite(dpi) && dpi > 0 ? dpi : 1;
}

void PlixPictureUI::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget)
{
    // Without a widget, the item is rendered to an image or a printer, and only once.
    PlixPictureWork work(widget ? PlixPictureWork::Limit::OnePaint : PlixPictureWork::Limit::None);
    const PlixCardClip clip(*painter, plix::CutByCard(*this, rect()));
    painter->save();
    if (background_)
        PaintBackground(*painter);
    // An exception in the middle of a paint would confuse Qt.
    plix::CatchExceptions([&] { PaintPicture(*painter, work); });
    painter->restore();
    if (work.IsRefused())
        update();
}

void PlixPictureUI::PaintBackground(QPainter& painter) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(*background_);
    if (cornerRadius_ < 1) {
        const QRectF area = rect();
        painter.drawRects(&area, 1);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPath(plix::RoundedPath(rect(), cornerRadius_));
}

QRectF PlixPictureUI::DrawingArea(const QSize& picture) const
{
    QRectF area = rect();
    if (fixedWidth_ > 0 && fixedWidth_ < area.width()) {
        const double room = (area.width() - fixedWidth_) / 2;
        area.adjust(room, 0, -room, 0);
    }
    if (aspectMode_ == PlixAspectMode::Cover)
        return area;
    const QSizeF size = QSizeF(picture).scaled(area.size(), Qt::KeepAspectRatio);
    const QPointF corner(area.x() + (area.width() - size.width()) * placement_.x,
                         area.y() + (area.height() - size.height()) * placement_.y);
    return {corner, size};
}

void PlixPictureUI::PaintPicture(QPainter& painter, PlixPictureWork& work)
{
    PlixPictureTarget target;
    const auto fit = [&](const QSize& size) {
        target = PlixPictureTarget(DrawingArea(size), DpiFactor());
        return target.Size();
    };
    const QImage image = picture_.Scaled(fit, GetOwner(), work);
    if (image.isNull())
        return;
    if (cornerRadius_ < 1)
        plix::DrawPicture(painter, image, target.Area());
    else
        plix::DrawPicture(painter, image, target.Area(), plix::RoundedPath(rect(), cornerRadius_));
}
