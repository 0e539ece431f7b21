#include "app/LaunchArguments.h"

#include <gtest/gtest.h>

namespace {

using app::LaunchAnswer;
using app::launchOf;
using Kind = platform::InstanceRequest::Kind;

TEST(LaunchArguments, LeavesTheToolkitItsOwnAndTakesTheLastOfOurs) {
    EXPECT_EQ(std::get<Kind>(launchOf({})), Kind::Activate);
    EXPECT_EQ(std::get<Kind>(launchOf({"-platform", "xcb", "-session", "10f"})), Kind::Activate);
    EXPECT_EQ(std::get<Kind>(launchOf({"--settings", "-platform", "xcb", "--quit"})), Kind::Quit);
}

TEST(LaunchArguments, AnswersWhatStartsNothing) {
    const auto help = std::get<LaunchAnswer>(launchOf({"--settings", "--help"}));
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.words.find("--feedback"), std::string::npos);
    EXPECT_EQ(std::get<LaunchAnswer>(launchOf({"--version"})).status, 0);
    const auto wrong = std::get<LaunchAnswer>(launchOf({"--settings", "--setings"}));
    EXPECT_EQ(wrong.status, 2);
    EXPECT_NE(wrong.words.find("unknown option --setings"), std::string::npos);
}

} // namespace
