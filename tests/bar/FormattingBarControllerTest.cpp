#include "BarFixture.h"

#include "bar/BarPlacement.h"
#include "monitor/NotesAutomation.h"

#include <QPointer>

namespace {

using platform::Rect;

class FormattingBarController : public BarFixture {
protected:
    Rect frame() { return fake_.windowServer.frames.at(&window()); }
};

TEST_F(FormattingBarController, MakesItsWindowAtTheFirstShowingAndKeepsItAtFullWidth) {
    EXPECT_FALSE(hasWindow("bar"));
    show();
    const QPointer<QWidget> first = &window();
    EXPECT_EQ(frame(), (Rect{400, 526, 590, 44}));
    show();
    EXPECT_EQ(&window(), first);
    EXPECT_EQ(frame(), (Rect{400, 526, 660, 44}));
    EXPECT_EQ(window().size(), QSize(660, 44));
    EXPECT_EQ(fake_.record, (fakes::Record{"make floating", "order front", "order front"}));
}

TEST_F(FormattingBarController, HidesAfterItsGraceAndKeepsTheWindow) {
    show();
    controller_->hide();
    fake_.runLoop.advance(0.2);
    controller_->hide(); // starts anew
    fake_.runLoop.advance(0.29);
    EXPECT_TRUE(window().isVisible());
    fake_.runLoop.advance(0.01);
    EXPECT_FALSE(window().isVisible());
    show();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(frame().width, 660);
}

TEST_F(FormattingBarController, SaysWhereTheColourPanelGoesBeforeItReportsTheChoice) {
    show(2);
    monitor::NotesAutomation::colorPanelPosition = {};
    platform::Point seen;
    controller_->onOpenColorPicker = [&] { seen = monitor::NotesAutomation::colorPanelPosition; };
    click(window(), "paintpalette.fill");
    EXPECT_EQ(seen, (platform::Point{400 + 660 + 10, 526}));
    monitor::NotesAutomation::colorPanelPosition = {};
}

TEST_F(FormattingBarController, CanBeEndedByItsOwnCallbacks) {
    const auto end = [this] {
        controller_.reset();
        reports_.push_back(QStringLiteral("ended"));
    };
    controller_->onFormatSelected = [end](bar::TextFormat) { end(); };
    show();
    click(window(), "bold");
    EXPECT_EQ(reports_, std::vector{QStringLiteral("ended")});
    EXPECT_FALSE(hasWindow("bar"));
}

} // namespace
