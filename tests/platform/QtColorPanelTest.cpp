#include "platform/qt/QtColorPanel.h"
#include "fakes/FakePlatform.h"

#include <QApplication>
#include <QColorDialog>
#include <gtest/gtest.h>

TEST(QtColorPanel, MovesItsFrameAndNeverShows) {
    fakes::FakePlatform fakes;
    platform::QtColorPanel panel(fakes.windowServer);
    panel.setMode(platform::ColorPanelMode::ColorList);
    const platform::Rect before = panel.frame();
    EXPECT_GT(before.width, 100);
    EXPECT_GT(before.height, 100);

    panel.setFrameOrigin({30, 40});
    EXPECT_EQ(panel.frame(), (platform::Rect{30, 40, before.width, before.height}));
    int dialogs = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<const QColorDialog*>(window) != nullptr) {
            ++dialogs;
            EXPECT_FALSE(window->isVisible());
            EXPECT_EQ(fakes.windowServer.frame(*window), panel.frame());
        }
    }
    EXPECT_EQ(dialogs, 1);
}
