#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace core {

/// Something that stays registered exactly as long as this object lives: an observer, a timer,
/// a key monitor. Move-only; an empty registration stands for nothing.
class [[nodiscard]] Registration {
public:
    Registration() = default;
    explicit Registration(std::function<void()> cancel) : cancel_(std::move(cancel)) {}
    Registration(Registration&& other) noexcept : cancel_(std::exchange(other.cancel_, nullptr)) {}
    Registration& operator=(Registration&& other) noexcept {
        if (this != &other) {
            reset();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }
    ~Registration() { reset(); }

    /// Ends the registration now. Does nothing when it is empty.
    void reset() {
        if (auto cancel = std::exchange(cancel_, nullptr)) {
            cancel();
        }
    }

    explicit operator bool() const { return static_cast<bool>(cancel_); }

private:
    std::function<void()> cancel_;
};

} // namespace core
