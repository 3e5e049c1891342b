#pragma once

#include <QtGlobal>

#include <vector>

class PlixMovie;

// Limits the memory of all animations of the process together: a card may name
// thousands of them.
class PlixMovieBudget {
public:
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
