#include "ui/image/PlixMovie.h"

#include "ui/image/PlixMovieBudget.h"

namespace {

// The frame on show, the decoder's, what it keeps to undo a frame, and the
// picture that Qt makes of it.
constexpr qint64 kBuffers = 4;
constexpr qint64 kBytesPerPixel = 4;

} // namespace

PlixMovie::PlixMovie(const PlixPictureFile& file)
    : bytes_(file.bytes.size() + kBuffers * kBytesPerPixel * file.size.width() * file.size.height())
{
    buffer_.setData(file.bytes);
    buffer_.open(QIODevice::ReadOnly);
    movie_.setFormat(file.format);
    movie_.setDevice(&buffer_);
    movie_.start();
    // Only now: whoever made the movie has its first frame.
    connect(&movie_, &QMovie::frameChanged, this, &PlixMovie::onFrame);
}

PlixMovie::~PlixMovie()
{
    PlixMovieBudget::GetInstance().Leave(*this);
}

bool PlixMovie::isAnimated() const
{
    return movie_.frameCount() > 1;
}

void PlixMovie::seen()
{
    isSeen_ = true;
    if (movie_.state() == QMovie::Paused)
        movie_.setPaused(false);
}

void PlixMovie::onFrame()
{
    if (!isSeen_)
        movie_.setPaused(true);
    isSeen_ = false;
    Q_EMIT frameChanged();
}
