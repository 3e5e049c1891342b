#include "ui/image/PlixPicture.h"

#include "layout/PlixLimits.h"
#include "ui/image/PlixDecodedPictures.h"
#include "ui/image/PlixMovie.h"
#include "ui/image/PlixMovieBudget.h"
#include "ui/image/PlixPictureFile.h"
#include "ui/image/PlixPictureWork.h"
#include "ui/image/PlixScaledPictures.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace {

using Pictures = QHash<QString, std::weak_ptr<PlixPicture>>;

Pictures& AllPictures()
{
    // Never destroyed: the host may delete its scene after static objects.
    static auto* const pictures = new Pictures;
    return *pictures;
}

// The largest rectangle in the middle of a picture that has the proportions of
// `shape`, rounded outwards to whole pixels.
QRect MiddlePart(const QSize& picture, const QSize& shape)
{
    const QSizeF part = QSizeF(shape).scaled(picture, Qt::KeepAspectRatio);
    const QPointF corner((picture.width() - part.width()) / 2,
                         (picture.height() - part.height()) / 2);
    return QRectF(corner, part).toAlignedRect().intersected(QRect(QPoint(), picture));
}

// Without a copy if `part` is the whole picture: QImage::copy() would make one.
QImage Cut(const QImage& picture, const QRect& part)
{
    return part == picture.rect() ? picture : picture.copy(part);
}

qint64 PixelsOf(const QSize& size)
{
    return qint64 {size.width()} * size.height();
}

QImage Scaled(const QImage& picture, const QSize& target)
{
    const QSize expanded = picture.size().scaled(target, Qt::KeepAspectRatioByExpanding);
    // In a long, thin item, only a line of the picture is left. To keep its
    // proportions, it would have to be as thick as it is long.
    const bool isBounded = PixelsOf(expanded) <= 2 * qint64 {plix::kMaximumScaledPixels};
    return picture.scaled(target,
                          isBounded ? Qt::KeepAspectRatioByExpanding : Qt::IgnoreAspectRatio,
                          Qt::SmoothTransformation);
}

// Cuts before scaling: otherwise the hidden part of a long, thin picture would be
// scaled up, too.
QImage ScaledMiddle(const QImage& picture, const QSize& target)
{
    const QImage scaled = Scaled(Cut(picture, MiddlePart(picture.size(), target)), target);
    const QSize excess = scaled.size() - target;
    return Cut(scaled, QRect(QPoint(excess.width() / 2, excess.height() / 2), target));
}

} // namespace

std::shared_ptr<PlixPicture> PlixPicture::Get(const QString& path)
{
    std::weak_ptr<PlixPicture>& known = AllPictures()[path];
    std::shared_ptr<PlixPicture> picture = known.lock();
    if (picture) {
        picture->OpenAgainIfChanged();
    } else {
        picture.reset(new PlixPicture(path));
        known = picture;
    }
    return picture;
}

PlixPicture::PlixPicture(const QString& path)
    : fileName_(path)
{
}

PlixPicture::~PlixPicture()
{
    PlixScaledPictures::Remove(*this);
    PlixDecodedPictures::Remove(*this);
    AllPictures().remove(fileName_);
}

PlixPicture::FileVersion PlixPicture::CurrentVersion() const
{
    const QFileInfo info(fileName_);
    return {info.size(), info.lastModified()};
}

void PlixPicture::OpenAgainIfChanged()
{
    if (!opened_ || *opened_ == CurrentVersion())
        return;
    Stop();
    opened_.reset();
    size_ = QSize();
    OnFrameChanged();
}

QImage PlixPicture::Scaled(const Fit& fit, PlixPictureWork& work)
{
    QImage frame;
    if (size_.isEmpty())
        frame = Open(work);
    if (size_.isEmpty())
        return {};
    QImage image = PlixScaledPictures::Find(*this, fit(size_));
    if (image.isNull()) {
        if (frame.isNull())
            frame = Frame(work);
        // size_ may have changed: the file may have been replaced.
        const QSize target = frame.isNull() ? QSize() : fit(size_);
        if (target.isEmpty())
            return {};
        image = ScaledMiddle(frame, target);
        work.Add(PixelsOf(frame.size()) + PixelsOf(target));
        ++PlixPictureWork::SoFar().scalings;
        PlixScaledPictures::Insert(*this, image);
    }
    if (movie_)
        movie_->MarkPainted();
    return image;
}

QImage PlixPicture::Frame(PlixPictureWork& work)
{
    // The frames of an animation do not wait. PlixMovieBudget limits their size.
    if (movie_)
        return movie_->Frame();
    const QImage decoded = PlixDecodedPictures::Find(*this);
    if (decoded.isNull())
        return Open(work);
    return work.MayStart(PixelsOf(decoded.size())) ? decoded : QImage();
}

QImage PlixPicture::Open(PlixPictureWork& work)
{
    const FileVersion version = CurrentVersion();
    const bool wasUnreadable = size_.isEmpty() && opened_ == version;
    const qint64 bytes = std::clamp<qint64>(version.bytes, 0, plix::kMaximumPictureFileBytes);
    if (wasUnreadable || !work.MayStart(std::max(cost_, bytes)))
        return {};
    const auto file = plix::ReadPictureFile(fileName_);
    work.Add(bytes);
    // Each pixel is written by the decoder, and read to be scaled.
    cost_ = file ? bytes + 2 * PixelsOf(file->size) : 0;
    if (!work.MayStart(cost_ - bytes))
        return {};
    size_ = QSize();
    QImage frame;
    if (file) {
        work.Add(PixelsOf(file->size));
        frame = Decode(*file);
    }
    // Not before: without the memory to decode it, the file would count as unreadable.
    opened_ = version;
    return frame;
}

QImage PlixPicture::Decode(const PlixPictureFile& file)
{
    ++PlixPictureWork::SoFar().decodings;
    auto movie = std::make_unique<PlixMovie>(file);
    QImage frame = movie->Frame();
    size_ = frame.size();
    if (movie->IsAnimated() && PlixMovieBudget::GetInstance().Join(*movie))
        Play(std::move(movie));
    else if (!frame.isNull() && IsShared())
        PlixDecodedPictures::Insert(*this, frame);
    return frame;
}

bool PlixPicture::IsShared() const
{
    return AllPictures().value(fileName_).use_count() > 1;
}

void PlixPicture::Play(std::unique_ptr<PlixMovie> movie)
{
    movie_ = std::move(movie);
    movie_->setParent(this); // where tests find it; movie_ owns it
    PlixScaledPictures::Remove(*this);
    connect(movie_.get(), &PlixMovie::FrameChanged, this, &PlixPicture::OnFrameChanged);
    // A paused movie has no scaled copy any more, so the next paint opens the file
    // again. A movie at its end keeps showing its last frame.
    connect(movie_.get(), &PlixMovie::Evicted, this, &PlixPicture::Stop);
}

void PlixPicture::Stop()
{
    movie_.reset();
}

void PlixPicture::OnFrameChanged()
{
    PlixScaledPictures::Remove(*this);
    PlixDecodedPictures::Remove(*this);
    Q_EMIT FrameChanged();
}
