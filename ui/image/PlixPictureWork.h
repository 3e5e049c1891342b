#pragma once

#include <QtGlobal>

// What one item may do to show its picture in one paint: read a file, decode it, scale it.
// Everything that is painted until control returns to Qt shares a limit
// (plix::kMaximumPictureWork), so that the GUI thread is not busy for long. What exceeds
// it has to wait for another paint. The first picture of a paint never waits.
//
// Work is counted in pixels that are read or written; a byte of a file counts as one.
class PlixPictureWork {
public:
    // Without a limit, nothing waits: a scene that is rendered to an image or a printer is
    // not painted again.
    enum class Limit { OnePaint, None };

    // All work of the process so far, for tests.
    struct Count {
        int decodings = 0;
        int scalings = 0;
    };
    static Count& SoFar();

    explicit PlixPictureWork(Limit limit);

    // Whether there is room for that much work. If not, IsRefused() from then on.
    bool MayStart(qint64 pixels);
    void Add(qint64 pixels);

    bool IsLimited() const { return limit_ == Limit::OnePaint; }
    bool IsRefused() const { return isRefused_; }
    bool IsDone() const { return done_ > 0; }

private:
    const Limit limit_;
    bool isRefused_ = false;
    qint64 done_ = 0;
};
