#pragma once

#include "ui/image/SignalCount.h"

#include <memory>
#include <string>

class PlixPicture;
class QObject;

namespace plix::test {

// The picture of this file that all items share.
std::shared_ptr<PlixPicture> sharedPicture(const std::string& path);

// Does what happens when the frame on show has been shown for as long as the file says:
// if the animation plays, the next frame follows. `owner` is a PlixPicture or a PlixMovie.
void endFrame(const QObject& owner);

// The frames of a picture that follow from now on, without waiting for them.
class AnimationFrames {
public:
    explicit AnimationFrames(const std::string& path);

    // Ends so many frames, and lets views paint each one that follows.
    void end(int frames);

    // How many frames have followed.
    int count() const { return frames_.count(); }

private:
    std::shared_ptr<PlixPicture> picture_;
    SignalCount frames_;
};

} // namespace plix::test
