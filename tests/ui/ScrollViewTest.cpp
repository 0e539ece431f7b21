#include "ui/ScrollView.h"

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

/// A page of 300 points in a window of 100, with something at its end that is empty yet.
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

    ui::Binding<QString> news_ = ui::state(QString());
    ui::ScrollArea area_{ui::vstack(
        {.spacing = 0}, block(300),
        ui::text(news_, std::function([](const QString& text) { return text; }), {.wraps = true}) |
            ui::revealedOn(news_))};
};

} // namespace

TEST_F(ScrollView, BringsIntoSightWhatHasOnlyJustAppearedAtItsEnd) {
    EXPECT_EQ(scrolled(), 0);
    news_->set(QStringLiteral("This takes several lines here."));
    EXPECT_GT(scrolled(), 200);
    EXPECT_EQ(scrolled(), area_.verticalScrollBar()->maximum());
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
