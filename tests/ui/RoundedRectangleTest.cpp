#include "ui/RoundedRectangle.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

using ui::RoundedRectangle;

/// How far the outline stays away from the top-left corner along the diagonal.
double diagonalInset(const QPainterPath& path) {
    double inset = 0;
    while (!path.contains(QPointF(inset, inset) / std::numbers::sqrt2)) {
        inset += 0.01;
    }
    return inset;
}

TEST(RoundedRectangle, CornersAreAsDeepAsACirclesAndMeetTheEdges) {
    const QRectF rect(0, 0, 100, 40);
    const QPainterPath path = RoundedRectangle{10}.path(rect);
    EXPECT_NEAR(diagonalInset(path), 10 * (std::numbers::sqrt2 - 1), 0.05);
    EXPECT_EQ(path.boundingRect(), rect);
    // Steeper than an arc where the edge ends: the corner begins further away.
    EXPECT_FALSE(path.contains(QPointF(10.5, 0.004)));
    EXPECT_TRUE(path.contains(QPointF(15, 0.004)));
}

TEST(RoundedRectangle, AnyRadiusStaysInsideTheRectangle) {
    for (const double radius : {-1.0, 0.0, 3.0, 500.0}) {
        EXPECT_EQ(RoundedRectangle{radius}.path({0, 0, 20, 10}).boundingRect(),
                  QRectF(0, 0, 20, 10))
            << radius;
    }
    EXPECT_TRUE(RoundedRectangle{0}.path({0, 0, 20, 10}).contains(QPointF(0.01, 0.01)));
}

} // namespace
