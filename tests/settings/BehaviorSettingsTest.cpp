#include "SettingsFixture.h"

#include "core/NotificationCenter.h"

#include <QAbstractButton>
#include <QTest>
#include <gmock/gmock.h>

namespace {

const QString automatic = QStringLiteral("Automatically on text selection");
const QString byShortcut = QStringLiteral("With keyboard shortcut");
const QString slider = QStringLiteral("Delay before appearing");
const QString recorder = QStringLiteral("Keyboard shortcut");

using Settings = SettingsFixture;

/// 0.0, 0.1, … 2.0, each as near as a number can be.
std::vector<double> stops() {
    std::vector<double> all;
    for (int tenths = 0; tenths <= 20; ++tenths) {
        all.push_back(tenths / 10.0);
    }
    return all;
}

} // namespace

TEST_F(Settings, TheRowsFollowTheModeAtOnceAndKeepTheirValues) {
    open();
    EXPECT_TRUE(shows(QStringLiteral("Delay before appearing: 0.3s")));
    EXPECT_FALSE(shows(recorder));
    store_.appearanceDelay = 1.2;
    click(byShortcut);
    EXPECT_TRUE(store_.useKeyboardShortcut);
    EXPECT_TRUE(shows(recorder));
    EXPECT_TRUE(shows(
        QStringLiteral("Press the shortcut when text is selected to show the formatting bar")));
    EXPECT_FALSE(shows(slider));
    EXPECT_FALSE(shows(QStringLiteral("Instant")));
    const auto writes = fake_.userDefaults.writes.size();
    click(byShortcut); // chosen already
    EXPECT_EQ(fake_.userDefaults.writes.size(), writes);

    store_.useKeyboardShortcut = false; // from elsewhere
    EXPECT_FALSE(shows(recorder));
    EXPECT_TRUE(shows(slider));
    EXPECT_TRUE(dynamic_cast<QAbstractButton&>(part(automatic)).isChecked());
    EXPECT_FALSE(dynamic_cast<QAbstractButton&>(part(byShortcut)).isChecked());
    EXPECT_EQ(store_.appearanceDelay, 1.2);
    EXPECT_EQ(store_.shortcutModifiers, 0x180100U);
}

TEST_F(Settings, TheSliderHas21ExactStopsForKeysAndPointer) {
    open();
    std::vector<double> written;
    const auto delays = store_.appearanceDelay.observe([&](double d) { written.push_back(d); });
    part(slider).setFocus();
    press({Qt::Key_Home});
    for (int i = 0; i < 22; ++i) {
        press({i % 2 == 0 ? Qt::Key_Right : Qt::Key_Up});
    }
    EXPECT_THAT(written, testing::ElementsAreArray(stops()));
    EXPECT_TRUE(shows(QStringLiteral("Delay before appearing: 2.0s")));

    written.clear();
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Down, Qt::Key_PageUp,
                              Qt::Key_Home, Qt::Key_PageDown, Qt::Key_End}) {
        press({key});
    }
    EXPECT_THAT(written, testing::ElementsAre(1.5, 1.4, 1.3, 1.8, 0.0, 2.0));

    // Dragged from beyond one end to beyond the other it passes each stop once.
    written.clear();
    const QRect track = place(slider);
    QWindow* window = window_->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, track.topLeft() + QPoint(1, 9));
    for (int x = track.left(); x < track.right() + 20; x += 3) {
        QTest::mouseMove(window, {x, track.top() + 150});
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, track.bottomRight());
    QTest::mouseMove(window, track.center());
    EXPECT_THAT(written, testing::ElementsAreArray(stops()));
}

