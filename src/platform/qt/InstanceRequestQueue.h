#pragma once

#include "core/Registration.h"
#include "platform/ProgramInstance.h"

#include <QObject>

#include <deque>

namespace platform {

/// What other starts asked for and the program has not seen to yet. Main thread only.
class InstanceRequestQueue {
public:
    /// See ProgramInstance::setRequestHandler.
    [[nodiscard]] core::Registration setRequestHandler(ProgramInstance::Handler handler);

    /// Hands a request to the handler from the event loop, or keeps it for the next handler.
    void accept(InstanceRequest request);

private:
    void deliver();

    ProgramInstance::Handler handler_;
    std::deque<InstanceRequest> undelivered_;
    /// Calls off what the event loop still has to do.
    QObject context_;
};

} // namespace platform
