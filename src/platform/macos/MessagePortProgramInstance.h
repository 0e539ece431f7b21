#pragma once

#include "platform/ProgramInstance.h"
#include "platform/macos/CfReference.h"
#include "platform/qt/InstanceRequestQueue.h"

namespace platform {

/// Whoever has the message port of the program's name is the program; what a further start asks
/// for is a message to it. The system itself starts a bundle once, but not an executable.
class MessagePortProgramInstance final : public ProgramInstance {
public:
    ~MessagePortProgramInstance() override;

    Claim claim(InstanceRequest::Kind asked) override;
    [[nodiscard]] core::Registration setRequestHandler(Handler handler) override;

private:
    bool takePort();

    InstanceRequestQueue requests_;
    CfReference<CFMessagePortRef> port_;
};

} // namespace platform
