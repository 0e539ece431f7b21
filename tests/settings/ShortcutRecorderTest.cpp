#include "SettingsFixture.h"

#include "settings/views/ShortcutRecorderButton.h"
#include "settings/views/ShortcutRecorderNSView.h"
#include "ui/Theme.h"

#include <QTest>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr quint32 aKey = 30;
const QString prompt = QStringLiteral("Press keys...");
const QString recorder = QStringLiteral("Keyboard shortcut");

/// Counts the key presses that nothing in the window took.
class KeyCounter final : public QObject {
public:
    explicit KeyCounter(QObject& window)
        : QObject(&window) {
        window.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        presses += event->type() == QEvent::KeyPress;
        return false;
    }
    int presses = 0;
};

class ShortcutRecorder : public SettingsFixture {
protected:
    ShortcutRecorder() {
        store_.useKeyboardShortcut = true;
        fake_.keyPositions = {{aKey, 0}, {48, 11}, {15, 48}, {1, 53},    {28, 36},
                              {57, 49},  {27, 30}, {45, 40}, {105, 123}, {67, 96}};
        open();
    }

    std::pair<std::uint16_t, std::uint64_t> stored() const {
        return {store_.shortcutKeyCode, store_.shortcutModifiers};
    }
    QColor pixel(QPoint point) const { return part(recorder).grab().toImage().pixelColor(point); }
};

} // namespace

TEST_F(ShortcutRecorder, TakesWhicheverKeyComesWithAModifierAndNoOther) {
    struct Row {
        Key key;
        std::pair<std::uint16_t, std::uint64_t> stored;
        const char* shown;
    };
    const Qt::KeyboardModifiers all =
        Qt::ShiftModifier | Qt::MetaModifier | Qt::AltModifier | Qt::ControlModifier;
    const std::vector<Row> rows{
        {{Qt::Key_A, Qt::ShiftModifier, aKey}, {0, 0x20000}, "⇧A"},
        {{Qt::Key_B, all & ~Qt::ShiftModifier, 48}, {11, 0x1C0000}, "^⌥⌘B"},
        {{Qt::Key_B, all, 48}, {11, 0x1E0000}, "^⌥⇧⌘B"},
        {{Qt::Key_Tab, Qt::ControlModifier, 15}, {48, 0x100000}, "⌘Tab"},
        {{Qt::Key_Backtab, Qt::ShiftModifier, 15}, {48, 0x20000}, "⇧Tab"},
        {{Qt::Key_Escape, Qt::ControlModifier, 1}, {53, 0x100000}, "⌘Esc"},
        {{Qt::Key_Return, Qt::AltModifier, 28}, {36, 0x80000}, "⌥Return"},
        {{Qt::Key_Space, Qt::MetaModifier, 57}, {49, 0x40000}, "^Space"},
        {{Qt::Key_Left, Qt::ControlModifier, 105}, {123, 0x100000}, "⌘?"},
        {{Qt::Key_BracketRight, Qt::ControlModifier, 27}, {30, 0x100000}, "⌘?"},
        {{Qt::Key_F5, Qt::ControlModifier | Qt::KeypadModifier, 67}, {96, 0x100000}, "⌘F5"},
    };
    const KeyCounter window(*window_);
    for (const Row& row : rows) {
        const auto before = stored();
        click(recorder);
        ASSERT_TRUE(shows(prompt)) << row.shown;
        press({row.key.key, {}, row.key.scanCode});
        press({Qt::Key_Shift, Qt::ShiftModifier, aKey});    // a modifier alone, wherever it is
        press({Qt::Key_Launch0, Qt::ControlModifier, 999}); // a key without a position
        EXPECT_TRUE(shows(prompt)) << row.shown;
        EXPECT_EQ(stored(), before) << row.shown;

        press(row.key);
        EXPECT_EQ(stored(), row.stored) << row.shown;
        EXPECT_FALSE(shows(prompt)) << row.shown;
        EXPECT_TRUE(shows(QString::fromUtf8(row.shown))) << row.shown;
        EXPECT_EQ(part(recorder).accessibleDescription(), QString::fromUtf8(row.shown));
    }
    EXPECT_EQ(window.presses, 0);
}

TEST_F(ShortcutRecorder, RecordsTheShortcutThatElseClosesTheWindow) {
    fake_.keyPositions[0] = 13;
    const auto press = [this] {
        QTest::keyClick(window_->windowHandle(), Qt::Key_W, Qt::ControlModifier);
    };
    click(recorder);
    press();
    EXPECT_EQ(stored(), std::pair(std::uint16_t{13}, std::uint64_t{0x100000}));
    EXPECT_TRUE(window_->isVisible());
    press();
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(ShortcutRecorder, IsReachedAndUsedWithoutAPointer) {
    click(QStringLiteral("Automatically on text selection"));
    openTab(QStringLiteral("General"));
    press({Qt::Key_Left});
    press({Qt::Key_Left});
    press({Qt::Key_Tab}); // to the choice of mode
    press({Qt::Key_Down});
    EXPECT_TRUE(store_.useKeyboardShortcut);
    press({Qt::Key_Tab});
    press({Qt::Key_Space, {}, 57});
    ASSERT_TRUE(shows(prompt));
    press({Qt::Key_Space, Qt::ControlModifier, 57});
    EXPECT_EQ(stored(), std::pair(std::uint16_t{49}, std::uint64_t{0x100000}));
    press({Qt::Key_Backtab, Qt::ShiftModifier, 15}); // back to the field, once more
    press({Qt::Key_Space, {}, 57});
    EXPECT_TRUE(shows(prompt));
}

