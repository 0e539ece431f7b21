#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <QString>

#include <utility>

namespace platform {

/// Owns one reference to a Core Foundation object, or none: what a Create or Copy function answers.
template <typename Reference>
class CfReference {
public:
    CfReference() = default;
    /// Takes over a reference that the caller owns.
    explicit CfReference(Reference owned)
        : reference_(owned) {}
    ~CfReference() { reset(); }

    CfReference(CfReference&& other) noexcept
        : reference_(std::exchange(other.reference_, nullptr)) {}
    CfReference& operator=(CfReference&& other) noexcept {
        if (this != &other) {
            reset();
            reference_ = std::exchange(other.reference_, nullptr);
        }
        return *this;
    }

    Reference get() const { return reference_; }
    explicit operator bool() const { return reference_ != nullptr; }

    /// Gives the reference away; the caller releases it.
    [[nodiscard]] Reference release() { return std::exchange(reference_, nullptr); }

private:
    void reset() {
        // Core Foundation ends the process for a null reference.
        if (reference_ != nullptr) {
            CFRelease(std::exchange(reference_, nullptr));
        }
    }

    Reference reference_ = nullptr;
};

/// The same object as one of the type that `typeId` names; empty when it is of another type.
template <typename Reference>
CfReference<Reference> asType(CfReference<CFTypeRef> object, CFTypeID typeId) {
    if (!object || CFGetTypeID(object.get()) != typeId) {
        return {};
    }
    return CfReference<Reference>(static_cast<Reference>(object.release()));
}

inline CfReference<CFStringRef> toCFString(const QString& text) {
    static_assert(sizeof(QChar) == sizeof(UniChar));
    return CfReference<CFStringRef>(CFStringCreateWithCharacters(
        kCFAllocatorDefault, reinterpret_cast<const UniChar*>(text.utf16()), text.size()));
}

inline QString toQString(CFStringRef text) {
    const CFIndex length = CFStringGetLength(text);
    QString copy(length, Qt::Uninitialized);
    CFStringGetCharacters(text, CFRangeMake(0, length), reinterpret_cast<UniChar*>(copy.data()));
    return copy;
}

} // namespace platform
