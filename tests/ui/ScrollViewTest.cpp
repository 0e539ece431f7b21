#include "ui/ScrollView.h"

#include "ui/Conditional.h"
#include "ui/Label.h"
#include "ui/Modifiers.h"
#include "ui/ScrollBar.h"
#include "ui/Stack.h"

#include <QApplication>
#include <QPropertyAnimation>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

ui::Element block(int height) {
    return ui::text(QStringLiteral("part")) | ui::frame({.width = 80, .height = height});
}

/// A page of 300 points in a window of 100, with a part at its end that is not there yet.
class ScrollView : public testing::Test {
protected:
    ScrollView() {
        area_.resize(100, 100);
        area_.show();
        QApplication::processEvents();
    }

    int scrolled() const {
        for (int round = 0; round < 5; ++round) {
            QApplication::processEvents();
            for (auto* animation : area_.findChildren<QPropertyAnimation*>()) {
                animation->setCurrentTime(animation->duration());
            }
        }
        return area_.verticalScrollBar()->value();
    }

    ui::Binding<bool> isThere_ = ui::state(false);
    ui::ScrollArea area_{
        ui::vstack({.spacing = 0}, block(300),
                   block(60) | ui::shownWhile(isThere_) | ui::revealedOn(isThere_))};
};

} // namespace

TEST_F(ScrollView, BringsIntoSightWhatHasOnlyJustAppearedAtItsEnd) {
    EXPECT_EQ(scrolled(), 0);
    isThere_->set(true);
    EXPECT_EQ(scrolled(), 260);
}

TEST_F(ScrollView, ItsIndicatorFollowsTheWheelAndLeadsThePage) {
    auto* indicator = area_.findChild<ui::ScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_NE(indicator, nullptr);
    EXPECT_EQ(area_.viewport()->width(), 100); // it takes no room from the page
    QWheelEvent wheel({50, 50}, area_.mapToGlobal(QPointF(50, 50)), {}, {0, -120}, {}, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(area_.viewport(), &wheel);
    EXPECT_GT(scrolled(), 0);
    EXPECT_EQ(indicator->value(), scrolled());
    // A press below the knob turns a page.
    indicator->setValue(0);
    QTest::mouseClick(indicator, Qt::LeftButton, {}, {4, 98});
    EXPECT_EQ(scrolled(), 100);
}
