#include "ContactSheet.h"

#include "PictureLimits.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QSize>

#include <algorithm>

namespace plix::tool {
namespace {

constexpr int kMaximumSheetWidth = 2000;
constexpr int kMargin = 40;
constexpr int kGap = 40;
constexpr int kCaptionHeight = 32;
constexpr int kMinimumCaptionWidth = 120;
// One very high card must not make the sheet unusable.
constexpr int kMaximumThumbnailHeight = 3000;

const QColor kSheetColour(0xE4, 0xE8, 0xED);
const QColor kCaptionColour(0x5B, 0x66, 0x75);

QFont captionFont()
{
    QFont font;
    font.setPixelSize(15);
    return font;
}

QSize cellSize(const QImage& thumbnail)
{
    return {std::max(thumbnail.width(), kMinimumCaptionWidth) + kGap,
            kCaptionHeight + thumbnail.height() + kGap};
}

} // namespace

void ContactSheet::add(const QString& name, const QImage& picture)
{
    const QSize size = (QSizeF(picture.size()) / picture.devicePixelRatio()).toSize();
    QImage thumbnail =
        picture.scaled(size.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    thumbnail.setDevicePixelRatio(1);
    if (thumbnail.height() > kMaximumThumbnailHeight)
        thumbnail = thumbnail.copy(0, 0, thumbnail.width(), kMaximumThumbnailHeight);
    entries_.append({name, thumbnail});
}

QImage ContactSheet::paint() const
{
    const ColumnLayout layout = columns();
    const QSize size = layout.size() + QSize(2 * kMargin - kGap, 2 * kMargin - kGap);
    QImage sheet(withinPictureLimits(size), QImage::Format_RGB32);
    sheet.fill(kSheetColour);

    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(captionFont());
    painter.setPen(kCaptionColour);
    painter.translate(kMargin, kMargin);
    for (int i = 0; i < entries_.size(); ++i)
        paintEntry(painter, entries_.at(i), layout.positions().at(i));
    return sheet;
}

ColumnLayout ContactSheet::columns() const
{
    QVector<QSize> cells;
    for (const Entry& entry : entries_)
        cells.append(cellSize(entry.thumbnail));
    return ColumnLayout(cells, kMaximumSheetWidth - 2 * kMargin + kGap);
}

void ContactSheet::paintEntry(QPainter& painter, const Entry& entry, const QPoint& position) const
{
    const QRect caption(position, QSize(cellSize(entry.thumbnail).width() - kGap, kCaptionHeight));
    const QString name =
        painter.fontMetrics().elidedText(entry.name, Qt::ElideRight, caption.width());
    painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter, name);
    painter.drawImage(position + QPoint(0, kCaptionHeight), entry.thumbnail);
}

} // namespace plix::tool
