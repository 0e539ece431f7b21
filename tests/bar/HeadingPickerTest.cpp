#include "BarFixture.h"

#include "ui/PopoverPlacement.h"
#include "ui/Theme.h"

#include <QApplication>

namespace {

using platform::DismissReason;
using platform::Rect;

class HeadingPicker : public BarFixture {
protected:
    void open() { click(window(), "textformat.size"); }
    bool isOpen() const { return hasWindow("textformat.size.popover") && picker().isVisible(); }
    Rect frame() const { return fake_.windowServer.frames.at(&picker()); }
    Rect headingButton() {
        return fake_.windowServer.frameOnScreen(
            *window().findChild<QWidget*>(QStringLiteral("textformat.size")));
    }
    void press(platform::Point point) {
        fake_.pointerMonitor.events.notify({DismissReason::PointerPressed, point});
    }
};

TEST_F(HeadingPicker, HangsWithItsArrowOnTheButtonsBottomEdgeAndFollowsTheBar) {
    show(2);
    open();
    const auto expectHanging = [this] {
        const Rect button = headingButton();
        EXPECT_EQ(frame().width, 140);
        EXPECT_EQ(frame().maxY(), button.minY());
        EXPECT_EQ(frame().x + 70, button.x + button.width / 2);
    };
    expectHanging();
    controller_->show({700, 300, 40, 18});
    EXPECT_EQ(headingButton().maxY(), 326 + 35);
    expectHanging();
    // The arrow lies over the bar, whichever of the two came to the front last.
    fake_.record.clear();
    QApplication::processEvents();
    EXPECT_EQ(fake_.record, fakes::Record{"order front"});
}

TEST_F(HeadingPicker, IsDismissedByAPressElsewhereEscapeOrAnotherActiveWindow) {
    show(2);
    for (const DismissReason reason : {DismissReason::PointerPressed, DismissReason::EscapePressed,
                                       DismissReason::ActiveWindowChanged}) {
        open();
        ASSERT_TRUE(isOpen());
        fake_.pointerMonitor.events.notify({reason, {5, 5}});
        EXPECT_FALSE(isOpen());
    }
    // It listens no longer: what happens now leaves the state as it is.
    press({5, 5});
    open();
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(reports_.empty());
}

TEST_F(HeadingPicker, GoesAndComesBackWithTheBar) {
    show(2);
    open();
    controller_->hide();
    fake_.runLoop.advance(0.3);
    EXPECT_FALSE(isOpen());
    press({5, 5});
    controller_->show({600, 300, 10, 18});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(frame().maxY(), headingButton().minY());
    press({5, 5});
    controller_->hide();
    fake_.runLoop.advance(0.3);
    show();
    EXPECT_FALSE(isOpen());
}

TEST_F(HeadingPicker, GoesWithTheControllerAlsoFromItsOwnChoice) {
    show(2);
    open();
    controller_->onHeadingSelected = [this](bar::HeadingLevel) { controller_.reset(); };
    click(picker(), "Title");
    EXPECT_FALSE(hasWindow("bar"));
    EXPECT_FALSE(hasWindow("textformat.size.popover"));
    press({5, 5});
}

} // namespace
