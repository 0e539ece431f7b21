#include "macos/fakes/c/AccessibilityFake.h"

#include <variant>

namespace appleFake {

namespace {

/// What the system allows a question when the asker set nothing.
constexpr double systemsOwnLimit = 6;

struct ElementObject final : Object {
    explicit ElementObject(int n)
        : Object(Element)
        , number(n) {}
    int number;
    double limit = systemsOwnLimit;
};

struct ValueObject final : Object {
    explicit ValueObject(std::variant<CGRect, CFRange> c)
        : Object(Value)
        , content(c) {}
    std::variant<CGRect, CFRange> content;
};

AXError ask(AXUIElementRef reference, CFStringRef attribute, CFTypeRef parameter,
            AXError unsupported, CFTypeRef* value) {
    const auto& object = checked<ElementObject>(reference, Element, "a question to an element");
    Accessibility& world = accessibility();
    Question question{object.number, text(attribute), object.limit, std::nullopt};
    if (parameter != nullptr) {
        const Object& given = checked(parameter, "a question's parameter");
        if (given.type == Value) {
            question.range = std::get<CFRange>(static_cast<const ValueObject&>(given).content);
        }
    }
    world.questions.push_back(question);

    const auto asked = world.elements.find(object.number);
    if (asked == world.elements.end()) {
        return kAXErrorInvalidUIElement;
    }
    const auto found = asked->second.find(question.attribute);
    if (found == asked->second.end()) {
        return unsupported;
    }
    const Answer& answer = found->second;
    const double taken = std::min(answer.seconds, object.limit);
    world.spent += taken;
    world.now += std::chrono::duration_cast<Accessibility::Clock::duration>(
        std::chrono::duration<double>(taken));
    if (answer.seconds > object.limit) {
        return kAXErrorCannotComplete;
    }
    if (answer.error == kAXErrorSuccess) {
        *value = answer.value ? answer.value() : nullptr;
    }
    return answer.error;
}

} // namespace

Accessibility& accessibility() {
    static Accessibility instance;
    return instance;
}

Answer string(std::u16string text) {
    return {kAXErrorSuccess, [text = std::move(text)] { return newString(text); }};
}

Answer element(int number) {
    return {kAXErrorSuccess, [number] { return keep(new ElementObject(number)); }};
}

Answer rectangle(CGRect rect) {
    return {kAXErrorSuccess, [rect] { return keep(new ValueObject(rect)); }};
}

Answer range(CFRange range) {
    return {kAXErrorSuccess, [range] { return keep(new ValueObject(range)); }};
}

Answer failure(AXError error) {
    return {error, {}};
}

Answer after(double seconds, Answer answer) {
    answer.seconds = seconds;
    return answer;
}

} // namespace appleFake

using namespace appleFake;

CFStringRef kAXTrustedCheckOptionPrompt = CFSTR("AXTrustedCheckOptionPrompt");

Boolean AXIsProcessTrusted() {
    accessibility().prompts.push_back(false);
    return accessibility().trusted ? 1 : 0;
}

Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options) {
    accessibility().prompts.push_back(
        options != nullptr && valueOf(options, kAXTrustedCheckOptionPrompt) == kCFBooleanTrue);
    return accessibility().trusted ? 1 : 0;
}

CFTypeID AXUIElementGetTypeID() {
    return Element;
}

AXUIElementRef AXUIElementCreateApplication(pid_t process) {
    return static_cast<AXUIElementRef>(keep(new ElementObject(process)));
}

AXError AXUIElementSetMessagingTimeout(AXUIElementRef reference, float seconds) {
    auto& object = checked<ElementObject>(reference, Element, "AXUIElementSetMessagingTimeout");
    if (seconds < 0) {
        return kAXErrorIllegalArgument;
    }
    object.limit = seconds > 0 ? static_cast<double>(seconds) : systemsOwnLimit;
    return kAXErrorSuccess;
}

AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef* value) {
    return ask(element, attribute, nullptr, kAXErrorAttributeUnsupported, value);
}

AXError AXUIElementCopyParameterizedAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                                   CFTypeRef parameter, CFTypeRef* value) {
    checked(parameter, "AXUIElementCopyParameterizedAttributeValue");
    return ask(element, attribute, parameter, kAXErrorParameterizedAttributeUnsupported, value);
}

CFTypeID AXValueGetTypeID() {
    return Value;
}

Boolean AXValueGetValue(AXValueRef reference, AXValueType type, void* place) {
    const auto& content = checked<ValueObject>(reference, Value, "AXValueGetValue").content;
    if (type == kAXValueTypeCGRect && std::holds_alternative<CGRect>(content)) {
        *static_cast<CGRect*>(place) = std::get<CGRect>(content);
        return 1;
    }
    if (type == kAXValueTypeCFRange && std::holds_alternative<CFRange>(content)) {
        *static_cast<CFRange*>(place) = std::get<CFRange>(content);
        return 1;
    }
    return 0;
}
