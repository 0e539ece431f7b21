#pragma once

#include "platform/ProgramInstance.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace app {

/// What to say, and the status to end with, where the arguments ask for no start at all.
struct LaunchAnswer {
    std::string words;
    int status;
};

/// What the arguments of a start ask for: "--settings", "--feedback" or "--quit", the last of them
/// if there are several. Those with one dash, and what follows them, belong to the toolkit.
std::variant<platform::InstanceRequest::Kind, LaunchAnswer>
launchOf(const std::vector<std::string_view>& arguments);

} // namespace app
