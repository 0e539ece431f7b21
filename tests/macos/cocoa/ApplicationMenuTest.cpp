#include "platform/macos/ApplicationMenu.h"

#include <QAction>
#include <gtest/gtest.h>

namespace {

TEST(ApplicationMenuTest, ItsSettingsEntryIsTheOneOfTheApplicationsMenu) {
    int opened = 0;
    const platform::ApplicationMenu menu([&opened] { ++opened; });
    EXPECT_EQ(menu.settings().menuRole(), QAction::PreferencesRole);
    menu.settings().trigger();
    EXPECT_EQ(opened, 1);
}

} // namespace
