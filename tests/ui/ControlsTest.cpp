#include "fakes/FakePlatform.h"
#include "ui/Label.h"
#include "ui/List.h"
#include "ui/RadioGroup.h"
#include "ui/Slider.h"
#include "ui/Stack.h"
#include "ui/Theme.h"
#include "ui/TitledWindow.h"
#include "ui/Toggle.h"

#include <QAbstractButton>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

/// A window with one control in it.
class Controls : public testing::Test {
protected:
    void show(ui::Element control) {
        window_.setContent(std::move(control));
        window_.show();
        window_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    }
    template <typename Widget>
    Widget& only() const {
        return *window_.findChild<Widget*>();
    }
    void press(Qt::Key key) { QTest::keyClick(window_.windowHandle(), key); }
    bool isRinged(const QWidget& control) {
        const QPoint outside = control.mapTo(&window_, QPoint(-2, control.height() / 2));
        return window_.grab().toImage().pixelColor(outside) !=
               ui::color({ui::Color::WindowBackground}, window_.palette());
    }

    fakes::FakePlatform fake_;
    ui::TitledWindow window_{QStringLiteral("Controls"), QSize(300, 200)};
};

TEST_F(Controls, AreRingedWhenTheKeyboardCameByAKey) {
    const auto isOn = ui::state(false);
    show(ui::vstack({.spacing = 20}, ui::toggle(QStringLiteral("First"), isOn),
                    ui::toggle(QStringLiteral("Second"), isOn)));
    const auto switches = window_.findChildren<QAbstractButton*>();
    QTest::mouseClick(switches[0], Qt::LeftButton);
    EXPECT_TRUE(switches[0]->hasFocus());
    EXPECT_FALSE(isRinged(*switches[0]));
    press(Qt::Key_Tab);
    EXPECT_TRUE(isRinged(*switches[1]));
    press(Qt::Key_Backtab);
    EXPECT_FALSE(isRinged(*switches[1]));
    EXPECT_TRUE(isRinged(*switches[0]));
}

TEST_F(Controls, RadioButtonsFollowArrowsAndTheirValue) {
    const auto value = ui::state(false);
    std::vector<bool> chosen;
    const auto changes = value->observe([&](bool next) { chosen.push_back(next); });
    show(ui::radioGroup(QStringLiteral("Title"), value,
                        {{QStringLiteral("No"), false}, {QStringLiteral("Yes"), true}}));
    const auto buttons = window_.findChildren<QAbstractButton*>();
    buttons[0]->setFocus();
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    press(Qt::Key_Space); // chosen already
    EXPECT_THAT(chosen, ElementsAre(true, false));
    value->set(true);
    EXPECT_TRUE(buttons[1]->isChecked());
    EXPECT_FALSE(buttons[0]->isChecked());
}

TEST_F(Controls, AListLetsItsFormerRowsGoAtOnce) {
    const auto items = ui::state(std::vector{QStringLiteral("a"), QStringLiteral("b")});
    show(ui::list<QString>(items, {.accessibilityLabel = QStringLiteral("Letters"),
                                   .row = [](const QString& item) { return ui::text(item); },
                                   .name = [](const QString& item) { return item; },
                                   .activate = [](const QString&) {}}));
    const QPointer<QWidget> former = only<ui::LazyList>().row(1);
    items->set({QStringLiteral("c")});
    EXPECT_TRUE(former.isNull()) << "it waits for the event loop, as would those of every next key";
}

} // namespace
