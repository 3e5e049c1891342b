#include "ui/image/PlixMovie.h"

#include "ui/image/PlixMovieBudget.h"

namespace {

// The current frame, the decoder's copy, the decoder's backup to undo a frame, and
// the pixmap that Qt makes of it.
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
    // After start(), so that the first frame is not announced: frame() returns it.
    connect(&movie_, &QMovie::frameChanged, this, &PlixMovie::OnFrame);
}

PlixMovie::~PlixMovie()
{
    PlixMovieBudget::GetInstance().Leave(*this);
}

bool PlixMovie::IsAnimated() const
{
    return movie_.frameCount() > 1;
}

void PlixMovie::MarkPainted()
{
    isPainted_ = true;
    if (movie_.state() == QMovie::Paused)
        movie_.setPaused(false);
}

void PlixMovie::OnFrame()
{
    if (!isPainted_)
        movie_.setPaused(true);
    isPainted_ = false;
    Q_EMIT FrameChanged();
}
