#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <string>
#include <utility>

/// A recording stand-in for Apple's C interfaces. It keeps the books on references and stops the
/// process where the real system would crash or corrupt memory.
namespace appleFake {

enum Type : CFTypeID {
    String = 1,
    Boolean_,
    Dictionary,
    Element,
    Value
};

struct Object {
    explicit Object(Type t)
        : type(t) {}
    virtual ~Object() = default;

    Type type;
    long references = 1;
    /// Belongs to the program or the system: nobody releases it.
    bool isConstant = false;
};

struct StringObject final : Object {
    explicit StringObject(std::u16string t)
        : Object(String)
        , text(std::move(t)) {}
    std::u16string text;
};

/// Keeps the object for good, so that a use after its release is noticed. Returns the caller's
/// reference.
const void* keep(Object* object);

/// The same, as what the real system calls it.
template <typename Reference>
Reference made(Object* object) {
    return static_cast<Reference>(const_cast<void*>(keep(object)));
}

/// The object behind a reference. Stops the process for null, for what is no object, for a released
/// one and for another type.
Object& checked(const void* reference, const char* caller);
template <typename T>
T& checked(const void* reference, Type type, const char* caller);

[[noreturn]] void crash(const char* caller, const char* what);

/// Objects that still have an owner.
long liveObjects();

CFTypeRef newString(std::u16string text);
std::string text(CFStringRef string);
/// Null when the key is not there; still the dictionary's.
CFTypeRef valueOf(CFDictionaryRef dictionary, CFStringRef key);

template <typename T>
T& checked(const void* reference, Type type, const char* caller) {
    Object& object = checked(reference, caller);
    if (object.type != type) {
        crash(caller, "an object of another type");
    }
    return static_cast<T&>(object);
}

} // namespace appleFake
