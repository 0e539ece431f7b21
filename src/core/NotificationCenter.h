#pragma once

#include "core/Observers.h"

#include <QString>

#include <map>

namespace core {

/// Named messages inside the process. Main thread only.
class NotificationCenter {
public:
    /// The process's default centre.
    static NotificationCenter& defaultCenter();

    /// Calls `handler` for each message of that name for as long as the registration lives.
    [[nodiscard]] Registration addObserver(const QString& name, std::function<void()> handler);
    void post(const QString& name);

private:
    std::map<QString, Observers<>> observers_;
};

} // namespace core
