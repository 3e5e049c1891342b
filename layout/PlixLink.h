#pragma once

template <typename T> class PlixLinkTarget;

// A pointer to an object that somebody else owns. It is null once the object is
// gone, like QPointer, but T need not be a QObject. GUI thread only.
//
// The links to an object are in a list, so that a layout pass can link every item
// without allocating memory.
//
// Do not keep what get() returns while other code runs: call it again.
template <typename T> class PlixLink {
public:
    PlixLink() = default;
    ~PlixLink() { leave(); }

    PlixLink(const PlixLink& other) { enter(other.target_); }
    PlixLink& operator=(const PlixLink& other)
    {
        if (this != &other) {
            leave();
            enter(other.target_);
        }
        return *this;
    }

    T* get() const { return target_ ? target_->object_ : nullptr; }

private:
    friend class PlixLinkTarget<T>;

    explicit PlixLink(const PlixLinkTarget<T>* target) { enter(target); }

    void enter(const PlixLinkTarget<T>* target)
    {
        target_ = target;
        if (!target_)
            return;
        next_ = target_->first_;
        if (next_)
            next_->previous_ = this;
        target_->first_ = this;
    }

    void leave()
    {
        if (!target_)
            return;
        (previous_ ? previous_->next_ : target_->first_) = next_;
        if (next_)
            next_->previous_ = previous_;
        clear();
    }

    void clear()
    {
        target_ = nullptr;
        next_ = nullptr;
        previous_ = nullptr;
    }

    const PlixLinkTarget<T>* target_ = nullptr;
    PlixLink* next_ = nullptr;
    PlixLink* previous_ = nullptr;
};

// A member of the object that links point to. It is destroyed with the object, which
// makes the links null.
template <typename T> class PlixLinkTarget {
public:
    explicit PlixLinkTarget(T* object)
        : object_(object)
    {
    }
    ~PlixLinkTarget() { expire(); }

    PlixLinkTarget(const PlixLinkTarget&) = delete;
    PlixLinkTarget& operator=(const PlixLinkTarget&) = delete;

    PlixLink<T> link() const { return PlixLink<T>(object_ ? this : nullptr); }

    // Makes the links null while the object still exists.
    void expire()
    {
        object_ = nullptr;
        while (first_) {
            PlixLink<T>* const link = first_;
            first_ = link->next_;
            link->clear();
        }
    }

private:
    friend class PlixLink<T>;

    T* object_;
    mutable PlixLink<T>* first_ = nullptr;
};
