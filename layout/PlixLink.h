#pragma once

#include <memory>

template <typename T> class PlixLinkTarget;

// A pointer to an object that somebody else owns. It is null once the object is
// gone, like QPointer, but T need not be a QObject.
//
// Do not keep what get() returns while other code runs: call it again.
template <typename T> class PlixLink {
public:
    PlixLink() = default;

    // A shared pointer would keep the link from expiring, but not the object from
    // being deleted: so a plain one is returned.
    T* get() const { return object_.lock().get(); }

private:
    friend class PlixLinkTarget<T>;

    explicit PlixLink(const std::shared_ptr<T>& object)
        : object_(object)
    {
    }

    std::weak_ptr<T> object_;
};

// A member of the object that links point to. It is destroyed with the object, which
// makes the links null.
template <typename T> class PlixLinkTarget {
public:
    explicit PlixLinkTarget(T* object)
        : object_(object, [](T*) {})
    {
    }

    PlixLinkTarget(const PlixLinkTarget&) = delete;
    PlixLinkTarget& operator=(const PlixLinkTarget&) = delete;

    PlixLink<T> link() const { return PlixLink<T>(object_); }
    // Makes the links null while the object still exists.
    void expire() { object_.reset(); }

private:
    std::shared_ptr<T> object_; // never deletes it
};
