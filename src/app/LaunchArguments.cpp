#include "app/LaunchArguments.h"

namespace app {

platform::InstanceRequest::Kind requestOf(const std::vector<std::string_view>& arguments) {
    using enum platform::InstanceRequest::Kind;
    auto asked = Activate;
    for (const std::string_view argument : arguments) {
        if (argument == "--settings") {
            asked = Settings;
        } else if (argument == "--feedback") {
            asked = Feedback;
        } else if (argument == "--quit") {
            asked = Quit;
        }
    }
    return asked;
}

} // namespace app
