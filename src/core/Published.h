#pragma once

#include "core/Observers.h"

#include <functional>
#include <utility>

namespace core {

/// A value that tells its observers before each assignment, also when the new value equals the
/// old one. An observer gets the value that is about to be assigned; reading the property inside
/// an observer still yields the old one. Main thread only.
template <typename T>
class Published {
public:
    Published() = default;
    explicit Published(T initial) : value_(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const T& get() const { return value_; }
    operator const T&() const { return value_; } // NOLINT(google-explicit-constructor)

    void set(T newValue) {
        observers_.notify(newValue);
        value_ = std::move(newValue);
    }
    Published& operator=(T newValue) {
        set(std::move(newValue));
        return *this;
    }

    /// Calls `handler` before each assignment for as long as the registration lives.
    [[nodiscard]] Registration observe(std::function<void(const T&)> handler) {
        return observers_.add(std::move(handler));
    }

private:
    T value_{};
    Observers<const T&> observers_;
};

} // namespace core
