#pragma once

#include "platform/RunningApplication.h"

#include <optional>

namespace platform {

/// Whom posted keys are meant for: the application that was last asked to come to the front. Keys
/// are delivered to whoever has the keyboard, and in another window they would do harm, so they may
/// leave only while it is that application.
class KeyTarget {
public:
    void set(ProcessIdentifier process) { process_ = process; }

    /// True as well while nobody was asked.
    bool isInFront(const std::optional<RunningApplication>& frontmost) const {
        return !process_ || (frontmost && frontmost->processIdentifier == *process_);
    }

private:
    std::optional<ProcessIdentifier> process_;
};

} // namespace platform
