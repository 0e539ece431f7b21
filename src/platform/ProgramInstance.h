#pragma once

#include "core/Registration.h"
#include "platform/ActivationToken.h"

#include <functional>
#include <memory>

namespace platform {

/// What a start of the program, or the desktop, asks of the one that runs.
struct InstanceRequest {
    /// Activate: the program was started again, and nothing in particular was asked.
    enum class Kind { Activate, Settings, Feedback, Quit };

    Kind kind = Kind::Activate;
    ActivationToken token;

    bool operator==(const InstanceRequest&) const = default;
};

/// Sees to it that the program runs once for each user session. Main thread only.
class ProgramInstance {
public:
    using Handler = std::function<void(const InstanceRequest&)>;

    /// First: this process is the program now, or cannot find out whether another one is.
    /// HandedOver: another process is, and was told of this start.
    /// Unanswered: another process is, but could not be told; a log line says why.
    enum class Claim { First, HandedOver, Unanswered };

    virtual ~ProgramInstance() = default;

    /// Makes this process the program, or tells the one that is what this start asks for. Waits for
    /// another process for some seconds at most, and for nothing when there is none. The first one
    /// gets what it asked for itself as a request, unless that is Activate. Needs no application
    /// object.
    [[nodiscard]] virtual Claim claim(InstanceRequest::Kind asked) = 0;

    /// Calls `handler` for each request, from the event loop, for as long as the registration
    /// lives. Those that arrive while there is no handler are kept for the next one. One handler
    /// at a time.
    [[nodiscard]] virtual core::Registration setRequestHandler(Handler handler) = 0;
};

/// The system's own implementation. Needs no application object.
std::unique_ptr<ProgramInstance> makeProgramInstance();

} // namespace platform
