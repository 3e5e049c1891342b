#include "ui/image/AnimationFrames.h"

#include "ui/image/ChatView.h"
#include "ui/image/PlixPicture.h"

#include <QMovie>

namespace plix::test {

std::shared_ptr<PlixPicture> sharedPicture(const std::string& path)
{
    return PlixPicture::Get(QString::fromStdString(path));
}

void endFrame(const QObject& owner)
{
    auto* const movie = owner.findChild<QMovie*>();
    // A paused movie, or one at its end, has no timer that could run out.
    if (movie && movie->state() == QMovie::Running)
        movie->jumpToNextFrame();
}

AnimationFrames::AnimationFrames(const std::string& path)
    : picture_(sharedPicture(path))
    , frames_(picture_.get(), &PlixPicture::FrameChanged)
{
}

void AnimationFrames::end(int frames)
{
    deliverEvents();
    for (int i = 0; i < frames; ++i) {
        endFrame(*picture_);
        deliverEvents();
    }
}

} // namespace plix::test
