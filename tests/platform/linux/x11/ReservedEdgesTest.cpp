#include "platform/linux/x11/ReservedEdges.h"

#include <gtest/gtest.h>

namespace platform {

namespace {

// Two screens side by side, the right one lower.
constexpr PixelRect desktopFrame{0, 0, 2000, 1000};
constexpr PixelRect left{0, 0, 1000, 800};
constexpr PixelRect right{1000, 0, 1000, 1000};

void expectFrames(const std::vector<std::uint32_t>& strut, PixelRect ofLeft, PixelRect ofRight) {
    const auto edges = reservedEdges(strut);
    EXPECT_EQ(visibleFrame(left, desktopFrame, edges), ofLeft);
    EXPECT_EQ(visibleFrame(right, desktopFrame, edges), ofRight);
}

} // namespace

TEST(ReservedEdges, APanelTakesOnlyFromTheScreenAlongItsPartOfTheEdge) {
    expectFrames({0, 0, 30, 0, 0, 0, 0, 0, 0, 999, 0, 0}, {0, 30, 1000, 770}, right);
    expectFrames({0, 0, 30, 0, 0, 0, 0, 0, 1000, 1999, 0, 0}, left, {1000, 30, 1000, 970});
    // Measured from the bottom of the whole desktop, 200 below the left screen.
    expectFrames({0, 0, 0, 240, 0, 0, 0, 0, 0, 0, 0, 999}, {0, 0, 1000, 760}, right);
}

TEST(ReservedEdges, APanelOnAnInnerEdgeDoesNotTakeTheOuterScreen) {
    // At the left edge of the right screen: 1000 + 48 pixels from the desktop's own left edge.
    expectFrames({1048, 0, 0, 0, 0, 999, 0, 0, 0, 0, 0, 0}, left, {1048, 0, 952, 1000});
    expectFrames({0, 1024, 0, 0, 0, 0, 0, 799, 0, 0, 0, 0}, {0, 0, 976, 800}, right);
}

TEST(ReservedEdges, NonsenseTakesNothing) {
    expectFrames({1, 2, 3}, left, right);
    expectFrames({}, left, right);
    expectFrames({0, 0, 4000000000U, 0}, left, right);
    // Two panels that would leave nothing between them.
    expectFrames({900, 1950, 0, 0}, left, {1000, 0, 1000, 1000});
    EXPECT_EQ(visibleFrame(left, desktopFrame,
                           {{ReservedEdge::Side::Left, 600, 0, 999},
                            {ReservedEdge::Side::Right, 1600, 0, 999}}),
              left);
}

} // namespace platform
