#pragma once

#include "Step.h"

#include <QImage>
#include <QStringList>

#include <array>
#include <functional>

namespace bench {

// One way to show one card. Its life is measured again and again: for each step
// that it has, what comes before is done untimed, then the step is timed.
class Way {
public:
    explicit Way(const char* name)
        : name_(name)
    {
    }
    virtual ~Way() = default;

    Way(const Way&) = delete;
    Way& operator=(const Way&) = delete;

    // For tables.
    const char* name() const { return name_; }

    bool has(Step step) const { return static_cast<bool>(action(step).run); }
    void prepare(Step step);
    void run(Step step) { action(step).run(); }

    // After the first paint: what it shows, in reading order, and how it looks.
    virtual QStringList texts() const = 0;
    virtual QImage picture() const = 0;

protected:
    void on(Step step, std::function<void()> run) { action(step).run = std::move(run); }
    void before(Step step, std::function<void()> prepare);

private:
    struct Action {
        std::function<void()> prepare;
        std::function<void()> run;
    };

    Action& action(Step step) { return actions_[static_cast<std::size_t>(step)]; }
    const Action& action(Step step) const { return actions_[static_cast<std::size_t>(step)]; }

    const char* name_;
    std::array<Action, allSteps.size()> actions_;
};

} // namespace bench
