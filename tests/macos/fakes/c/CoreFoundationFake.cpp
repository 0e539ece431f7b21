#include "macos/fakes/c/Objects.h"

#include <map>
#include <vector>

using appleFake::checked;
using appleFake::Object;
using appleFake::StringObject;

namespace {

struct DictionaryObject final : Object {
    DictionaryObject()
        : Object(appleFake::Dictionary) {}
    ~DictionaryObject() override = default;
    /// Keys and values, owned when the callbacks said so.
    std::vector<std::pair<CFTypeRef, CFTypeRef>> entries;
    bool ownsEntries = false;
};

CFTypeRef constant(Object* object) {
    object->isConstant = true;
    return appleFake::keep(object);
}

} // namespace

struct CFDictionaryKeyCallBacks {};
struct CFDictionaryValueCallBacks {};
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFBooleanRef kCFBooleanTrue =
    static_cast<CFBooleanRef>(constant(new Object(appleFake::Boolean_)));

CFTypeRef CFRetain(CFTypeRef reference) {
    ++checked(reference, "CFRetain").references;
    return reference;
}

void CFRelease(CFTypeRef reference) {
    Object& object = checked(reference, "CFRelease");
    if (object.isConstant || --object.references > 0) {
        return;
    }
    if (object.type == appleFake::Dictionary) {
        auto& dictionary = static_cast<DictionaryObject&>(object);
        for (const auto& [key, value] : dictionary.entries) {
            if (dictionary.ownsEntries) {
                CFRelease(key);
                CFRelease(value);
            }
        }
    }
}

CFTypeID CFGetTypeID(CFTypeRef reference) {
    return checked(reference, "CFGetTypeID").type;
}

CFTypeID CFStringGetTypeID() {
    return appleFake::String;
}

CFStringRef __CFStringMakeConstantString(const char* text) {
    static std::map<std::string, CFTypeRef> constants;
    CFTypeRef& string = constants[text];
    if (string == nullptr) {
        const std::string ascii = text;
        string = constant(new StringObject({ascii.begin(), ascii.end()}));
    }
    return static_cast<CFStringRef>(string);
}

CFStringRef CFStringCreateWithCharacters(CFAllocatorRef, const UniChar* characters, CFIndex count) {
    const std::u16string text(characters, characters + count);
    return static_cast<CFStringRef>(keep(new StringObject(text)));
}

CFIndex CFStringGetLength(CFStringRef string) {
    const auto& object = checked<StringObject>(string, appleFake::String, "CFStringGetLength");
    return static_cast<CFIndex>(object.text.size());
}

void CFStringGetCharacters(CFStringRef string, CFRange range, UniChar* buffer) {
    const auto& text =
        checked<StringObject>(string, appleFake::String, "CFStringGetCharacters").text;
    if (range.location < 0 || range.length < 0 ||
        range.location + range.length > static_cast<CFIndex>(text.size())) {
        appleFake::crash("CFStringGetCharacters", "a range outside the string");
    }
    text.copy(reinterpret_cast<char16_t*>(buffer), static_cast<std::size_t>(range.length),
              static_cast<std::size_t>(range.location));
}

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values,
                                   CFIndex count, const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks) {
    auto* dictionary = new DictionaryObject;
    dictionary->ownsEntries = keyCallBacks != nullptr && valueCallBacks != nullptr;
    for (CFIndex i = 0; i < count; ++i) {
        dictionary->entries.emplace_back(keys[i], values[i]);
        if (dictionary->ownsEntries) {
            CFRetain(keys[i]);
            CFRetain(values[i]);
        }
    }
    return static_cast<CFDictionaryRef>(appleFake::keep(dictionary));
}

CFTypeRef appleFake::newString(std::u16string text) {
    return keep(new StringObject(std::move(text)));
}

std::string appleFake::text(CFStringRef string) {
    const auto& text = checked<StringObject>(string, String, "a string").text;
    return {text.begin(), text.end()};
}

CFTypeRef appleFake::valueOf(CFDictionaryRef dictionary, CFStringRef key) {
    for (const auto& [entryKey, value] :
         checked<DictionaryObject>(dictionary, Dictionary, "a dictionary").entries) {
        if (text(static_cast<CFStringRef>(entryKey)) == text(key)) {
            return value;
        }
    }
    return nullptr;
}
