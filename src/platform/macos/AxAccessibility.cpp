#include "platform/macos/AxAccessibility.h"

#include <limits>
#include <utility>

namespace platform {

namespace {

constexpr auto readingLimit = std::chrono::milliseconds(250);

bool isProcessTrustedOrAsks() {
    const void* key = kAXTrustedCheckOptionPrompt;
    const void* value = kCFBooleanTrue;
    const CfReference<CFDictionaryRef> options(
        CFDictionaryCreate(kCFAllocatorDefault, &key, &value, 1, &kCFTypeDictionaryKeyCallBacks,
                           &kCFTypeDictionaryValueCallBacks));
    return AXIsProcessTrustedWithOptions(options.get()) != 0;
}

} // namespace

struct AxAccessibility::ApplicationElement final : AccessibilityElement {
    ProcessIdentifier process = 0;
    CfReference<AXUIElementRef> element;
};

struct AxAccessibility::FocusedElement final : AccessibilityElement {
    ProcessIdentifier process = 0;
    CfReference<AXUIElementRef> element;
    std::optional<QString> selectedText;
};

struct AxAccessibility::SelectedRange final : AccessibilityTextRange {
    CfReference<CFTypeRef> value;
};

AxAccessibility::AxAccessibility(AxInquiry::Now now)
    : now_(std::move(now)) {}

bool AxAccessibility::isProcessTrusted(TrustPrompt prompt) {
    switch (prompt) {
    case TrustPrompt::Hidden:
        return AXIsProcessTrusted() != 0;
    case TrustPrompt::Shown:
        return isProcessTrustedOrAsks();
    }
    return false;
}

Accessibility::Element AxAccessibility::applicationElement(ProcessIdentifier process) {
    inquiry_.emplace(now_, readingLimit);
    auto application = std::make_shared<ApplicationElement>();
    application->process = process;
    if (process > 0 && process <= std::numeric_limits<pid_t>::max()) {
        application->element =
            CfReference<AXUIElementRef>(AXUIElementCreateApplication(static_cast<pid_t>(process)));
    }
    return application;
}

Accessibility::Element AxAccessibility::focusedElement(const Element& application) {
    const auto asked = std::dynamic_pointer_cast<const ApplicationElement>(application);
    if (!asked || !asked->element || !inquiry_) {
        return nullptr;
    }
    const auto guard = guards_.constFind(asked->process);
    if (guard != guards_.cend() && guard->isLeftAlone(now_())) {
        return nullptr;
    }
    auto focused = std::make_shared<FocusedElement>();
    focused->process = asked->process;
    focused->element = asType<AXUIElementRef>(
        inquiry_->attribute(asked->element.get(), kAXFocusedUIElementAttribute).value,
        AXUIElementGetTypeID());
    if (focused->element) {
        focused->selectedText = readSelectedText(focused->element.get());
    }
    if (inquiry_->ranOut()) {
        guards_[asked->process].ranOut(now_());
        return nullptr;
    }
    guards_.remove(asked->process);
    return focused->element ? focused : nullptr;
}

bool AxAccessibility::isReadable(AXUIElementRef element) {
    const AxAnswer subrole = inquiry_->attribute(element, kAXSubroleAttribute);
    if (subrole.error != kAXErrorSuccess) {
        // Any other error leaves open whether it is a password field.
        return subrole.error == kAXErrorNoValue || subrole.error == kAXErrorAttributeUnsupported ||
               subrole.error == kAXErrorNotImplemented;
    }
    if (!subrole.value || CFGetTypeID(subrole.value.get()) != CFStringGetTypeID()) {
        return true;
    }
    return toQString(static_cast<CFStringRef>(subrole.value.get())) !=
           toQString(kAXSecureTextFieldSubrole);
}

std::optional<QString> AxAccessibility::readSelectedText(AXUIElementRef element) {
    if (!isReadable(element)) {
        return std::nullopt;
    }
    const auto text = asType<CFStringRef>(
        inquiry_->attribute(element, kAXSelectedTextAttribute).value, CFStringGetTypeID());
    return text ? std::optional(toQString(text.get())) : std::nullopt;
}

std::optional<QString> AxAccessibility::selectedText(const Element& element) {
    const auto focused = std::dynamic_pointer_cast<const FocusedElement>(element);
    return focused ? focused->selectedText : std::nullopt;
}

AxAnswer AxAccessibility::ask(const FocusedElement& element, CFStringRef attribute,
                              CFTypeRef parameter) {
    if (!inquiry_ || !element.selectedText) {
        return {};
    }
    AxAnswer answer = parameter != nullptr
                          ? inquiry_->attribute(element.element.get(), attribute, parameter)
                          : inquiry_->attribute(element.element.get(), attribute);
    if (inquiry_->ranOut()) {
        guards_[element.process].ranOut(now_());
    }
    return answer;
}

Accessibility::TextRange AxAccessibility::selectedTextRange(const Element& element) {
    const auto focused = std::dynamic_pointer_cast<const FocusedElement>(element);
    if (!focused) {
        return nullptr;
    }
    auto range = std::make_shared<SelectedRange>();
    range->value = ask(*focused, kAXSelectedTextRangeAttribute, nullptr).value;
    return range->value ? range : nullptr;
}

std::optional<Rect> AxAccessibility::boundsForRange(const Element& element,
                                                    const TextRange& range) {
    const auto focused = std::dynamic_pointer_cast<const FocusedElement>(element);
    const auto selected = std::dynamic_pointer_cast<const SelectedRange>(range);
    if (!focused || !selected) {
        return std::nullopt;
    }
    AxAnswer answer = ask(*focused, kAXBoundsForRangeParameterizedAttribute, selected->value.get());
    if (!answer.value) {
        return std::nullopt;
    }
    const auto bounds = asType<AXValueRef>(std::move(answer.value), AXValueGetTypeID());
    CGRect rect{};
    // A value of another kind leaves the rectangle as it is.
    if (!bounds || AXValueGetValue(bounds.get(), kAXValueTypeCGRect, &rect) == 0) {
        return Rect{};
    }
    return Rect{rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

} // namespace platform
