#pragma once

#include <QObject>

namespace plix::test {

// How often a signal was emitted.
class SignalCount {
public:
    template <typename Sender, typename Signal> SignalCount(Sender* sender, Signal signal)
    {
        QObject::connect(sender, signal, &receiver_, [this] { ++count_; });
    }

    int count() const { return count_; }

private:
    QObject receiver_;
    int count_ = 0;
};

} // namespace plix::test
