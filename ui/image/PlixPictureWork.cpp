#include "ui/image/PlixPictureWork.h"

#include "layout/PlixLimits.h"
#include "ui/image/PlixDecodedPictures.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

namespace {

// What happens until control returns to Qt.
class Turn : public QObject {
public:
    static Turn& Instance()
    {
        // Never destroyed: the host may delete its scene after static objects.
        static auto* const instance = new Turn;
        return *instance;
    }

    void Begin()
    {
        if (!isRunning_)
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        isRunning_ = true;
    }

    qint64 done = 0;
    bool isRefused = false;

private:
    void customEvent(QEvent*) override
    {
        // What waits may need a decoded picture in another size.
        if (!isRefused)
            PlixDecodedPictures::Clear();
        isRunning_ = false;
        done = 0;
        isRefused = false;
    }

    bool isRunning_ = false;
};

} // namespace

PlixPictureWork::Count& PlixPictureWork::SoFar()
{
    static Count count;
    return count;
}

PlixPictureWork::PlixPictureWork(Limit limit)
    : limit_(limit)
{
}

bool PlixPictureWork::MayStart(qint64 pixels)
{
    Turn& turn = Turn::Instance();
    const bool isFirst = turn.done == done_;
    if (!IsLimited() || isFirst || turn.done + pixels <= plix::kMaximumPictureWork)
        return true;
    isRefused_ = true;
    turn.isRefused = true;
    return false;
}

void PlixPictureWork::Add(qint64 pixels)
{
    Turn& turn = Turn::Instance();
    turn.Begin();
    done_ += pixels;
    if (IsLimited())
        turn.done += pixels;
}
