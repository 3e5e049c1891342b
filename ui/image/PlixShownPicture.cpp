#include "ui/image/PlixShownPicture.h"

#include "ui/image/PlixKeptPictures.h"
#include "ui/image/PlixPictureWork.h"

#include <utility>

PlixShownPicture::~PlixShownPicture()
{
    Forget();
}

void PlixShownPicture::Set(std::shared_ptr<PlixPicture> picture)
{
    Forget();
    picture_ = std::move(picture);
}

void PlixShownPicture::Forget()
{
    if (keeps_)
        PlixKeptPictures::Remove(*this);
    keeps_ = false;
    shown_ = QSize();
    leftOut_.reset();
}

QImage PlixShownPicture::Scaled(const PlixPicture::Fit& fit, const void* card,
                                PlixPictureWork& work)
{
    if (!picture_)
        return {};
    if (!picture_->Size().isEmpty()) {
        const QSize size = fit(picture_->Size());
        QImage kept = Find(size);
        if (!kept.isNull())
            return kept;
        if (work.IsLimited() && IsLeftOut(size))
            return {};
    }
    const QImage image = picture_->Scaled(fit, work);
    keeps_ = keeps_ || work.IsRefused();
    return image.isNull() || Keep(image, card, work) ? image : QImage();
}

QImage PlixShownPicture::Find(const QSize& size) const
{
    const QImage kept = keeps_ ? PlixKeptPictures::Find(*this) : QImage();
    return kept.size() == size ? kept : QImage();
}

bool PlixShownPicture::Keep(const QImage& image, const void* card, const PlixPictureWork& work)
{
    if (!work.IsLimited() || picture_->IsAnimated())
        return true;
    const bool wasLost = work.IsDone() && image.size() == shown_;
    keeps_ = keeps_ || wasLost;
    shown_ = image.size();
    if (!keeps_ || PlixKeptPictures::Insert(*this, card, image))
        return true;
    leftOut_ = image.size();
    return false;
}
