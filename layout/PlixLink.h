#pragma once

#include <memory>

// A pointer to an object of another owner, null once that object is gone: what
// QPointer is for objects that are QObjects.
//
// The object has a shared pointer to itself, which owns nothing and is there to
// expire. Never hold what get() answers while other code runs: ask again.
template <typename T> class PlixLink {
public:
    PlixLink() = default;
    explicit PlixLink(const std::shared_ptr<T>& self)
        : self_(self)
    {
    }

    // A shared pointer that was held would keep the link from expiring, though
    // not the object from going.
    T* get() const { return self_.lock().get(); }

private:
    std::weak_ptr<T> self_;
};
