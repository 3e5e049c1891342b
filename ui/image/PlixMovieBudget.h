#pragma once

#include <QtGlobal>

#include <vector>

class PlixMovie;

// Limits the memory of all animations of the process together: a card may name
// thousands of them.
class PlixMovieBudget {
public:
    static constexpr qint64 kMaximumBytes = qint64 {256} * 1024 * 1024;
    // Playing a larger animation would keep the GUI thread busy.
    static constexpr qint64 kMaximumMovieBytes = qint64 {32} * 1024 * 1024;

    static PlixMovieBudget& GetInstance();

    // Adds `movie`, which must call Leave() before it is deleted. False if there is
    // no memory left for it. Evicts movies that are not playing to make room, the
    // oldest first.
    bool Join(PlixMovie& movie);
    void Leave(const PlixMovie& movie);

    qint64 UsedBytes() const { return usedBytes_; }

private:
    bool MakeRoom(qint64 bytes);

    std::vector<PlixMovie*> movies_;
    qint64 usedBytes_ = 0;
};
