#pragma once

#include "macos/fakes/c/Objects.h"

#include <vector>

namespace appleFake {

/// The one name that ports are asked for, and who has it: a port of this process, or somebody else.
struct MessagePorts {
    /// What another process answers with; the first is for the first message. Once they are used
    /// up, that process is gone.
    std::vector<SInt32> answersOfOwner;
    bool localCanBeMade = true;
    /// The waits allowed, for sending and for the answer.
    std::vector<std::pair<double, double>> limits;
};

/// Assign to it to start over.
MessagePorts& messagePorts();

} // namespace appleFake
