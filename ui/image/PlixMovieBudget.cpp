#include "ui/image/PlixMovieBudget.h"

#include "layout/PlixLimits.h"
#include "ui/image/PlixMovie.h"

#include <algorithm>

PlixMovieBudget& PlixMovieBudget::GetInstance()
{
    // Never destroyed: the host may delete its scene after static objects.
    static auto* const instance = new PlixMovieBudget;
    return *instance;
}

bool PlixMovieBudget::Join(PlixMovie& movie)
{
    if (movie.Bytes() > plix::kMaximumMovieBytes || !MakeRoom(movie.Bytes()))
        return false;
    movies_.push_back(&movie);
    usedBytes_ += movie.Bytes();
    return true;
}

bool PlixMovieBudget::MakeRoom(qint64 bytes)
{
    while (usedBytes_ + bytes > plix::kMaximumMoviesBytes) {
        const auto idle = std::find_if(movies_.begin(), movies_.end(),
                                       [](const PlixMovie* movie) { return !movie->IsPlaying(); });
        if (idle == movies_.end())
            return false;
        PlixMovie* const movie = *idle;
        Leave(*movie);
        Q_EMIT movie->Evicted();
    }
    return true;
}

void PlixMovieBudget::Leave(const PlixMovie& movie)
{
    const auto found = std::find(movies_.begin(), movies_.end(), &movie);
    if (found == movies_.end())
        return;
    movies_.erase(found);
    usedBytes_ -= movie.Bytes();
}
