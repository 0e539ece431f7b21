#pragma once

#include <Foundation/Foundation.h>

#include <utility>

namespace platform {

/// Keeps an Objective-C object alive, whether or not the compiler counts references itself.
template <typename Object>
class Strong {
public:
    Strong() = default;

    /// Shares in an object that others own too.
    explicit Strong(Object object)
        : object_(object) {
        retain();
    }

    /// Takes over what `alloc` and `init` made.
    static Strong adopt(Object made) {
        Strong result;
        result.object_ = made;
        return result;
    }

    Strong(const Strong& other)
        : object_(other.object_) {
        retain();
    }
    Strong(Strong&& other) noexcept
        : object_(std::exchange(other.object_, nil)) {}
    Strong& operator=(Strong other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Strong() {
#if !__has_feature(objc_arc)
        [object_ release];
#endif
    }

    Object get() const {
        return object_;
    }
    explicit operator bool() const {
        return object_ != nil;
    }

private:
    void retain() {
#if !__has_feature(objc_arc)
        [object_ retain];
#endif
    }

    Object object_ = nil;
};

} // namespace platform
