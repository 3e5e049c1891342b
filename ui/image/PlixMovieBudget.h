#pragma once

#include <QtGlobal>

#include <vector>

class PlixMovie;

// Bounds what all playing pictures of the process take in memory, together: a
// card may name thousands of them.
class PlixMovieBudget {
public:
    static constexpr qint64 kMaximumBytes = qint64 {256} * 1024 * 1024;
    // An animation larger than this keeps the GUI thread from its other work.
    static constexpr qint64 kMaximumMovieBytes = qint64 {32} * 1024 * 1024;

    static PlixMovieBudget& GetInstance();

    // Whether there is room for the movie to play. Movies that are not watched
    // make room for it, those that joined first.
    bool Join(PlixMovie& movie);
    void Leave(const PlixMovie& movie);

    qint64 UsedBytes() const { return usedBytes_; }

private:
    bool MakeRoom(qint64 bytes);

    std::vector<PlixMovie*> movies_;
    qint64 usedBytes_ = 0;
};
