#pragma once

#include "ui/image/PlixPicture.h"

#include <QImage>
#include <QSize>

#include <memory>
#include <optional>

class PlixPictureWork;

// The picture that an item shows. It may have to wait for its turn. Once it has, or once
// the cache of all items has lost its copy, the item keeps its own.
class PlixShownPicture {
public:
    PlixShownPicture() = default;
    ~PlixShownPicture();

    PlixShownPicture(const PlixShownPicture&) = delete;
    PlixShownPicture& operator=(const PlixShownPicture&) = delete;

    // Null: there is none.
    void Set(std::shared_ptr<PlixPicture> picture);
    const std::shared_ptr<PlixPicture>& Get() const { return picture_; }
    // To be called when the picture has another frame.
    void Forget();

    // The picture as PlixPicture::Scaled() returns it. Also null if it has to wait
    // (`work` is refused), or if the card has no bytes left for it. `card` identifies the
    // card of the item.
    QImage Scaled(const PlixPicture::Fit& fit, const void* card, PlixPictureWork& work);

private:
    QImage Find(const QSize& size) const;
    bool IsLeftOut(const QSize& size) const { return leftOut_ && *leftOut_ == size; }
    // False if there is no room.
    bool Keep(const QImage& image, const void* card, const PlixPictureWork& work);

    std::shared_ptr<PlixPicture> picture_;
    bool keeps_ = false;
    QSize shown_;
    std::optional<QSize> leftOut_;
};
