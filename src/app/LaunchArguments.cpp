#include "app/LaunchArguments.h"

#include "core/ProgramIdentity.h"

#include <cstdlib>

namespace app {

namespace {

constexpr std::string_view usage = "Usage: corvane-quillet [--settings | --feedback | --quit]\n";
constexpr std::string_view options =
    "\nShows a formatting bar next to the text that is selected in other applications.\n\n"
    "  --settings  open the settings, of the running program if there is one\n"
    "  --feedback  open the feedback form likewise\n"
    "  --quit      end the running program, and start none\n"
    "  --help      say this\n"
    "  --version   say the version\n";
constexpr int wrongUsage = 2;

} // namespace

std::variant<platform::InstanceRequest::Kind, LaunchAnswer>
launchOf(const std::vector<std::string_view>& arguments) {
    using enum platform::InstanceRequest::Kind;
    auto asked = Activate;
    for (const std::string_view argument : arguments) {
        if (argument == "--settings") {
            asked = Settings;
        } else if (argument == "--feedback") {
            asked = Feedback;
        } else if (argument == "--quit") {
            asked = Quit;
        } else if (argument == "--help" || argument == "-h") {
            return LaunchAnswer{std::string(usage) += options, EXIT_SUCCESS};
        } else if (argument == "--version") {
            return LaunchAnswer{"Corvane Quillet " + core::programVersion().toStdString() + "\n",
                                EXIT_SUCCESS};
        } else if (argument.starts_with("--")) {
            return LaunchAnswer{"corvane-quillet: unknown option " + std::string(argument) + "\n" +
                                    std::string(usage),
                                wrongUsage};
        }
    }
    return asked;
}

} // namespace app
