#pragma once

#include "platform/ProgramInstance.h"

#include <string_view>
#include <vector>

namespace app {

/// What the arguments of a start ask for: "--settings", "--feedback" or "--quit", the last of them
/// if there are several. Others belong to the toolkit.
platform::InstanceRequest::Kind requestOf(const std::vector<std::string_view>& arguments);

} // namespace app
