#pragma once

#include "platform/Geometry.h"
#include "platform/RunningApplication.h"

#include <QString>

#include <memory>
#include <optional>

namespace platform {

/// An element of another application's user interface, known to the layer that made it.
struct AccessibilityElement {
    virtual ~AccessibilityElement() = default;
};

/// A range of text in one or more elements, known to the layer that made it.
struct AccessibilityTextRange {
    virtual ~AccessibilityTextRange() = default;
};

enum class TrustPrompt { Hidden, Shown };

/// What assistive technology may ask other applications. Main thread only. Reading never blocks
/// longer than the deadline of 0.25 s that starts with applicationElement(); a read that fails,
/// times out or answers with a wrong type yields nothing.
class Accessibility {
public:
    using Element = std::shared_ptr<const AccessibilityElement>;
    using TextRange = std::shared_ptr<const AccessibilityTextRange>;

    virtual ~Accessibility() = default;

    /// Whether this process may read other applications. TrustPrompt::Shown lets the system ask
    /// the user when it may not; the question does not block.
    virtual bool isProcessTrusted(TrustPrompt prompt) = 0;

    /// The element of a whole application. Never null; whether it can be read shows later.
    virtual Element applicationElement(ProcessIdentifier process) = 0;

    /// "AXFocusedUIElement" of an application's element; null when it cannot be read.
    virtual Element focusedElement(const Element& application) = 0;

    /// "AXSelectedText"; empty when nothing is selected. Password fields never answer.
    virtual std::optional<QString> selectedText(const Element& element) = 0;

    /// "AXSelectedTextRange"; null when it cannot be read.
    virtual TextRange selectedTextRange(const Element& element) = 0;

    /// "AXBoundsForRange": points, origin at the top-left corner of the primary screen, y
    /// downwards. An answer that is no rectangle is the zero rectangle.
    virtual std::optional<Rect> boundsForRange(const Element& element, const TextRange& range) = 0;
};

} // namespace platform
