#include "ui/image/PlixPicture.h"

#include "ui/image/PlixMovie.h"
#include "ui/image/PlixMovieBudget.h"
#include "ui/image/PlixPictureFile.h"
#include "ui/image/PlixScaledPictures.h"

#include <QFileInfo>

#include <utility>

namespace {

// The largest rectangle of the proportions of `shape` in the middle of a
// picture, outwards to whole pixels.
QRect MiddlePart(const QSize& picture, const QSize& shape)
{
    const QSizeF part = QSizeF(shape).scaled(picture, Qt::KeepAspectRatio);
    const QPointF corner((picture.width() - part.width()) / 2,
                         (picture.height() - part.height()) / 2);
    return QRectF(corner, part).toAlignedRect().intersected(QRect(QPoint(), picture));
}

// Cut before it is scaled: what a long, thin picture has more than is shown
// would grow with it.
QImage ScaledMiddle(const QImage& picture, const QSize& target)
{
    const QRect part = MiddlePart(picture.size(), target);
    const QImage scaled =
        picture.copy(part).scaled(target, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return scaled.copy(QRect(
        QPoint((scaled.width() - target.width()) / 2, (scaled.height() - target.height()) / 2),
        target));
}

} // namespace

PlixPicture::PlixPicture() = default;

PlixPicture::~PlixPicture()
{
    PlixScaledPictures::Remove(*this);
}

void PlixPicture::setFileName(const QString& path)
{
    stop();
    fileName_ = path;
    unreadable_ = FileVersion();
    size_ = QSize();
    firstFrame_ = QImage();
    wasEvicted_ = false;
    PlixScaledPictures::Remove(*this);
}

QSize PlixPicture::size()
{
    if (size_.isEmpty())
        firstFrame_ = open();
    return size_;
}

QImage PlixPicture::scaledTo(const QSize& target)
{
    if (target.isEmpty()) {
        firstFrame_ = QImage();
        return {};
    }
    if (wasEvicted_)
        firstFrame_ = open();
    QImage image = PlixScaledPictures::Find(*this, target);
    if (image.isNull()) {
        const QImage frame = currentFrame();
        if (frame.isNull())
            return {};
        image = ScaledMiddle(frame, target);
        PlixScaledPictures::Insert(*this, image);
    }
    if (movie_)
        movie_->seen();
    return image;
}

QImage PlixPicture::currentFrame()
{
    if (!firstFrame_.isNull())
        return std::exchange(firstFrame_, QImage());
    return movie_ ? movie_->frame() : open();
}

QImage PlixPicture::open()
{
    wasEvicted_ = false;
    size_ = QSize();
    if (fileName_.isEmpty() || isKnownAsUnreadable())
        return {};
    const auto file = ReadPictureFile(fileName_);
    auto movie = file ? std::make_unique<PlixMovie>(*file) : nullptr;
    const QImage frame = movie ? movie->frame() : QImage();
    if (frame.isNull()) {
        noteAsUnreadable();
        return {};
    }
    size_ = frame.size();
    if (movie->isAnimated() && PlixMovieBudget::GetInstance().Join(*movie))
        play(std::move(movie));
    return frame;
}

void PlixPicture::play(std::unique_ptr<PlixMovie> movie)
{
    movie_ = std::move(movie);
    PlixScaledPictures::Remove(*this);
    connect(movie_.get(), &PlixMovie::frameChanged, this, &PlixPicture::onFrameChanged);
    connect(movie_.get(), &PlixMovie::evicted, this, [this] {
        wasEvicted_ = true;
        stop();
    });
}

void PlixPicture::stop()
{
    movie_.reset();
}

void PlixPicture::onFrameChanged()
{
    firstFrame_ = QImage();
    PlixScaledPictures::Remove(*this);
    Q_EMIT frameChanged();
}

bool PlixPicture::isKnownAsUnreadable() const
{
    if (unreadable_.size < 0)
        return false;
    const QFileInfo info(fileName_);
    return info.exists() && info.size() == unreadable_.size
        && info.lastModified() == unreadable_.modified;
}

void PlixPicture::noteAsUnreadable()
{
    const QFileInfo info(fileName_);
    if (info.exists())
        unreadable_ = {info.size(), info.lastModified()};
}
