#pragma once

#include "platform/ProgramInstance.h"
#include "platform/macos/CfReference.h"
#include "platform/qt/InstanceRequestQueue.h"

#include <utility>

namespace platform {

/// Whoever has the message port of the program's name is the program; what a further start asks
/// for is a message to it. The system itself starts a bundle once, but not an executable.
class MessagePortProgramInstance final : public ProgramInstance {
public:
    ~MessagePortProgramInstance() override;

    Claim claim(InstanceRequest::Kind asked) override;
    [[nodiscard]] core::Registration setRequestHandler(Handler handler) override;

    /// Takes a request that the program itself makes like one of a further start.
    void accept(InstanceRequest request) { requests_.accept(std::move(request)); }

private:
    bool takePort();

    InstanceRequestQueue requests_;
    CfReference<CFMessagePortRef> port_;
};

} // namespace platform
