#include "platform/linux/atspi/AtSpiAccessibility.h"

#include "core/Log.h"
#include "platform/linux/atspi/BoundsReader.h"

#include <algorithm>

namespace platform {

namespace {

/// At login the accessibility bus may have to be started first, and a "no" holds until the next
/// start of the program.
constexpr std::chrono::milliseconds startUpLimit{5000};
/// A menu action asks, and the user waits.
constexpr std::chrono::milliseconds questionLimit{250};
constexpr std::chrono::milliseconds takeUpLimit{100};

} // namespace

struct AtSpiAccessibility::ApplicationElement final : AccessibilityElement {
    explicit ApplicationElement(ProcessIdentifier p)
        : process(p) {}
    ProcessIdentifier process;
};

struct AtSpiAccessibility::FocusedElement final : AccessibilityElement {
    ProcessIdentifier process = 0;
    FocusedObject focus;
    std::optional<Selection> selection;
};

struct AtSpiAccessibility::SelectedRange final : AccessibilityTextRange {
    std::vector<TextSpan> spans;
};

AtSpiAccessibility::AtSpiAccessibility(ApplicationWindows& windows, QDBusConnection session,
                                       ReadingLimits limits)
    : windows_(windows)
    , limits_(limits)
    , bus_(std::move(session))
    , events_(bus_) {
    QObject::connect(&bus_, &AccessibilityBus::connected, &context_, [this] {
        // Another bus gives the same names to other applications.
        found_.reset();
        directory_.clear();
        guards_.clear();
        focusFinder_ = {};
        coordinates_ = {};
        outdated_ = Outdated::Focus;
    });
    QObject::connect(&events_, &EventListener::focusChanged, &context_,
                     [this](const QString&) { outdated_ = Outdated::Focus; });
    QObject::connect(&events_, &EventListener::textChanged, &context_,
                     [this](const QString&) { outdated_ = std::max(outdated_, Outdated::Text); });
    QObject::connect(&events_, &EventListener::applicationsChanged, &context_,
                     [this](const QString& service) { forgetApplication(service); });
}

AtSpiAccessibility::~AtSpiAccessibility() = default;

bool AtSpiAccessibility::isProcessTrusted(TrustPrompt prompt) {
    if (prompt == TrustPrompt::Hidden) {
        return bus_.isEnabled(questionLimit).value_or(false);
    }
    if (!bus_.connect(startUpLimit)) {
        core::log(u"The accessibility bus does not answer");
        return false;
    }
    const auto enabled = bus_.isEnabled(startUpLimit);
    if (enabled == false) {
        trustQuestion_.ask([this] { bus_.enable(); });
    }
    return enabled.value_or(false);
}

Accessibility::Element AtSpiAccessibility::applicationElement(ProcessIdentifier process) {
    startInquiry();
    return std::make_shared<ApplicationElement>(process);
}

void AtSpiAccessibility::startInquiry(std::chrono::milliseconds spent) {
    if (inquiry_ && inquiry_->callCount() > 0 && !inquiry_->ranOut()) {
        // Everything that was asked was answered in time: the next lapse counts as the first.
        guards_.remove(lookedAt_);
    }
    earlierCalls_ = callCount();
    inquiry_.emplace(bus_.connection(),
                     std::max(limits_.deadline - spent, std::chrono::milliseconds(0)));
}

int AtSpiAccessibility::callCount() const {
    return earlierCalls_ + (inquiry_ ? inquiry_->callCount() : 0);
}

Accessibility::Element AtSpiAccessibility::focusedElement(const Element& application) {
    const auto known = std::dynamic_pointer_cast<const ApplicationElement>(application);
    if (!known || !takeUpBus()) {
        return nullptr;
    }
    const auto now = Clock::now();
    const auto guard = guards_.constFind(known->process);
    if (guard != guards_.cend() && guard->isLeftAlone(now)) {
        return nullptr;
    }
    if (canReuse(known->process, now)) {
        return found_;
    }
    auto found = look(known->process);
    if (inquiry_->ranOut()) {
        guards_[known->process].ranOut(Clock::now());
        outdated_ = Outdated::Focus;
        return nullptr;
    }
    found_ = std::move(found);
    return found_;
}

bool AtSpiAccessibility::takeUpBus() {
    if (bus_.isUpToDate()) {
        return true;
    }
    const auto now = Clock::now();
    if (lastConnectAttempt_ && now - *lastConnectAttempt_ < limits_.reconnectInterval) {
        return bus_.isConnected();
    }
    lastConnectAttempt_ = now;
    if (!bus_.connect(takeUpLimit)) {
        return bus_.isConnected();
    }
    // Connecting took its part of the time.
    startInquiry(std::chrono::ceil<std::chrono::milliseconds>(Clock::now() - now));
    return true;
}

bool AtSpiAccessibility::canReuse(ProcessIdentifier process, Clock::time_point now) const {
    return process == lookedAt_ && outdated_ == Outdated::Nothing &&
           now - lookedWhen_ < limits_.longestTrust;
}

std::shared_ptr<const AtSpiAccessibility::FocusedElement>
AtSpiAccessibility::look(ProcessIdentifier process) {
    const auto now = Clock::now();
    const bool focusHolds = process == lookedAt_ && found_ && outdated_ == Outdated::Text &&
                            now - lookedWhen_ < limits_.longestTrust;
    outdated_ = Outdated::Nothing;
    auto element = std::make_shared<FocusedElement>();
    element->process = process;
    if (focusHolds) {
        element->focus = found_->focus;
        element->selection = SelectionReader(*inquiry_).read(element->focus);
        if (element->selection || inquiry_->ranOut()) {
            return element;
        }
        // The object may be gone.
    }
    lookedAt_ = process;
    lookedWhen_ = now;
    const auto focus = findFocus(process);
    if (!focus) {
        return nullptr;
    }
    element->focus = *focus;
    element->selection = SelectionReader(*inquiry_).read(*focus);
    return element;
}

std::optional<FocusedObject> AtSpiAccessibility::findFocus(ProcessIdentifier process) {
    const auto service = directory_.serviceOf(process, *inquiry_);
    if (!service) {
        events_.follow(QString());
        return std::nullopt;
    }
    auto focus = focusFinder_.find(*service, events_.lastFocused(*service), *inquiry_);
    if (inquiry_->ranOut()) {
        // To follow a sender the library asks the bus for its owner, without a limit of ours, and
        // it may be the bus that does not answer.
        return std::nullopt;
    }
    // What is embedded from another process tells of itself under that process's name.
    events_.follow(focus ? focus->object.service : *service);
    return focus;
}

void AtSpiAccessibility::forgetApplication(const QString& service) {
    if (const auto process = directory_.forget(service)) {
        guards_.remove(*process);
    }
    focusFinder_.forget(service);
    outdated_ = Outdated::Focus;
}

std::optional<QString> AtSpiAccessibility::selectedText(const Element& element) {
    const auto focused = std::dynamic_pointer_cast<const FocusedElement>(element);
    return focused && focused->selection ? std::optional(focused->selection->text) : std::nullopt;
}

Accessibility::TextRange AtSpiAccessibility::selectedTextRange(const Element& element) {
    const auto focused = std::dynamic_pointer_cast<const FocusedElement>(element);
    if (!focused || !focused->selection) {
        return nullptr;
    }
    auto range = std::make_shared<SelectedRange>();
    range->spans = focused->selection->spans;
    return range;
}

std::optional<Rect> AtSpiAccessibility::boundsForRange(const Element& element,
                                                       const TextRange& range) {
    const auto focused = std::dynamic_pointer_cast<const FocusedElement>(element);
    const auto selected = std::dynamic_pointer_cast<const SelectedRange>(range);
    if (!focused || !selected || !inquiry_) {
        return std::nullopt;
    }
    const auto bounds =
        BoundsReader(*inquiry_, windows_, coordinates_).read(selected->spans, focused->process);
    if (inquiry_->ranOut()) {
        guards_[focused->process].ranOut(Clock::now());
    }
    return bounds ? std::optional(windows_.pixelGeometry().topLeftPoints(*bounds)) : std::nullopt;
}

} // namespace platform
