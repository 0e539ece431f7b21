#include "app/StatusMenu.h"

#include <QAction>
#include <gtest/gtest.h>

TEST(StatusMenu, FindsTheStatusLineByItsTagAlone) {
    app::StatusMenu menu;
    ASSERT_NE(menu.itemWithTag(100), nullptr);
    EXPECT_EQ(menu.itemWithTag(100), menu.menu().actions().at(2));
    EXPECT_EQ(menu.itemWithTag(0), nullptr);
}
