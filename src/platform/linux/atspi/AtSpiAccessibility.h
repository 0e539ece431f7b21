#pragma once

#include "platform/Accessibility.h"
#include "platform/SlownessGuard.h"
#include "platform/linux/ApplicationWindows.h"
#include "platform/linux/atspi/AccessibilityBus.h"
#include "platform/linux/atspi/ApplicationCoordinates.h"
#include "platform/linux/atspi/ApplicationDirectory.h"
#include "platform/linux/atspi/EventListener.h"
#include "platform/linux/atspi/FocusFinder.h"
#include "platform/linux/atspi/SelectionReader.h"
#include "platform/linux/atspi/TrustQuestion.h"

#include <QHash>
#include <QObject>

#include <chrono>
#include <optional>

namespace platform {

/// The time limits of reading other applications.
struct ReadingLimits {
    /// All calls that follow one applicationElement().
    std::chrono::milliseconds deadline{220};
    /// What is read again even though no event asked for it.
    std::chrono::milliseconds longestTrust{2000};
    /// Until a lost accessibility bus is looked for again.
    std::chrono::milliseconds reconnectInterval{1000};
};

/// Reads other applications over AT-SPI. One look reads the focused object, its selected text and
/// the range together; the same answer is then given, without a message to anybody, until an event
/// of the application says that there is something new.
class AtSpiAccessibility final : public Accessibility {
public:
    explicit AtSpiAccessibility(ApplicationWindows& windows,
                                QDBusConnection session = QDBusConnection::sessionBus(),
                                ReadingLimits limits = {});
    ~AtSpiAccessibility() override;

    bool isProcessTrusted(TrustPrompt prompt) override;
    Element applicationElement(ProcessIdentifier process) override;
    Element focusedElement(const Element& application) override;
    std::optional<QString> selectedText(const Element& element) override;
    TextRange selectedTextRange(const Element& element) override;
    std::optional<Rect> boundsForRange(const Element& element, const TextRange& range) override;

    /// How many messages were sent to the accessibility bus since the start.
    int callCount() const;

private:
    using Clock = std::chrono::steady_clock;
    struct ApplicationElement;
    struct FocusedElement;
    struct SelectedRange;

    /// What of the last look does not hold any more.
    enum class Outdated { Nothing, Text, Focus };

    bool takeUpBus();
    bool canReuse(ProcessIdentifier process, Clock::time_point now) const;
    std::shared_ptr<const FocusedElement> look(ProcessIdentifier process);
    std::optional<FocusedObject> findFocus(ProcessIdentifier process);
    void forgetApplication(const QString& service);
    /// `spent` of the deadline is gone already.
    void startInquiry(std::chrono::milliseconds spent = std::chrono::milliseconds(0));

    ApplicationWindows& windows_;
    ReadingLimits limits_;
    AccessibilityBus bus_;
    EventListener events_;
    ApplicationDirectory directory_;
    FocusFinder focusFinder_;
    ApplicationCoordinates coordinates_;
    TrustQuestion trustQuestion_;
    QHash<ProcessIdentifier, SlownessGuard> guards_;

    std::optional<Inquiry> inquiry_;
    int earlierCalls_ = 0;
    std::optional<Clock::time_point> lastConnectAttempt_;

    /// The last look: at whom, when, and what it found, which may be nothing.
    ProcessIdentifier lookedAt_ = 0;
    Clock::time_point lookedWhen_;
    Outdated outdated_ = Outdated::Focus;
    std::shared_ptr<const FocusedElement> found_;

    /// Ends the subscriptions first.
    QObject context_;
};

} // namespace platform
