#pragma once

#include "platform/RunningApplication.h"
#include "platform/linux/atspi/Inquiry.h"

#include <QHash>
#include <QString>

#include <optional>

namespace platform {

/// Which process owns which name on the accessibility bus.
class ApplicationDirectory {
public:
    /// The name under which a process answers; empty when it does not take part.
    std::optional<QString> serviceOf(ProcessIdentifier process, Inquiry& inquiry);

    /// The process that had this name, if it was known.
    std::optional<ProcessIdentifier> forget(const QString& service);
    void clear() { processes_.clear(); }

private:
    void learn(Inquiry& inquiry);
    std::optional<QString> find(ProcessIdentifier process) const;

    /// By service, in no order: a process seldom has two.
    QHash<QString, ProcessIdentifier> processes_;
};

} // namespace platform
