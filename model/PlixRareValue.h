#pragma once

#include <memory>
#include <utility>

// A value that few objects have: a null pointer until it is written.
template <typename Value> class PlixRareValue {
public:
    PlixRareValue() = default;
    ~PlixRareValue() = default;

    PlixRareValue(const PlixRareValue& other)
        : value_(other.value_ ? std::make_unique<Value>(*other.value_) : nullptr)
    {
    }
    PlixRareValue(PlixRareValue&& other) noexcept = default;
    PlixRareValue& operator=(PlixRareValue other) noexcept
    {
        std::swap(value_, other.value_);
        return *this;
    }

    // The value, or a default one as long as there is none.
    const Value& Get() const
    {
        // Never destroyed: a card may still exist when static objects are destroyed.
        static const auto* const none = new Value;
        return value_ ? *value_ : *none;
    }

    // The value, to be written.
    Value& Make()
    {
        if (!value_)
            value_ = std::make_unique<Value>();
        return *value_;
    }

private:
    std::unique_ptr<Value> value_;
};
