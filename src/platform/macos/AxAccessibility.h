#pragma once

#include "platform/Accessibility.h"
#include "platform/SlownessGuard.h"
#include "platform/macos/AxInquiry.h"

#include <QHash>

#include <optional>

namespace platform {

/// Reads other applications through the system's accessibility interface.
///
/// The focused element is read together with its selected text, so that an application that runs
/// into the time limit answers like one whose focused element cannot be read.
class AxAccessibility final : public Accessibility {
public:
    explicit AxAccessibility(AxInquiry::Now now = &AxInquiry::Clock::now);

    bool isProcessTrusted(TrustPrompt prompt) override;
    Element applicationElement(ProcessIdentifier process) override;
    Element focusedElement(const Element& application) override;
    std::optional<QString> selectedText(const Element& element) override;
    TextRange selectedTextRange(const Element& element) override;
    std::optional<Rect> boundsForRange(const Element& element, const TextRange& range) override;

private:
    struct ApplicationElement;
    struct FocusedElement;
    struct SelectedRange;

    bool isReadable(AXUIElementRef element);
    std::optional<QString> readSelectedText(AXUIElementRef element);
    AxAnswer ask(const FocusedElement& element, CFStringRef attribute, CFTypeRef parameter);

    AxInquiry::Now now_;
    std::optional<AxInquiry> inquiry_;
    QHash<ProcessIdentifier, SlownessGuard> guards_;
};

} // namespace platform
