#pragma once

#include "core/Observers.h"

#include <functional>
#include <utility>

namespace core {

/// A value that tells its observers before each assignment, also when the new value equals the
/// old one. An observer gets the value that is about to be assigned; reading the property inside
/// an observer still yields the old one. What its owner does about an assignment, such as storing
/// the value, comes after it. Main thread only.
template <typename T>
class Published {
public:
    Published() = default;
    explicit Published(T initial) : value_(std::move(initial)) {}
    /// `assigned` is called after each assignment, however it was made.
    Published(T initial, std::function<void(const T&)> assigned)
        : value_(std::move(initial))
        , assigned_(std::move(assigned)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const T& get() const { return value_; }
    operator const T&() const { return value_; } // NOLINT(google-explicit-constructor)

    void set(T newValue) {
        observers_.notify(newValue);
        value_ = std::move(newValue);
        if (assigned_) {
            assigned_(value_);
        }
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
    std::function<void(const T&)> assigned_;
    Observers<const T&> observers_;
};

} // namespace core
