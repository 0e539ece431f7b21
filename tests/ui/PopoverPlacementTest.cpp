#include "ui/PopoverPlacement.h"

#include <gtest/gtest.h>

namespace {

using platform::Rect;
using ui::ArrowDirection;

constexpr platform::Size body{140, 130};
constexpr platform::Screen screen{{0, 0, 1000, 800}, {0, 40, 1000, 735}};

struct Case {
    const char* name;
    Rect anchor;
    Rect frame;
    ArrowDirection arrow;
    double arrowX;
};

class PopoverPlacement : public testing::TestWithParam<Case> {};

TEST_P(PopoverPlacement, PointsAtTheAnchorFromInsideTheScreen) {
    const auto [name, anchor, frame, arrow, arrowX] = GetParam();
    EXPECT_EQ(ui::placePopover(anchor, body, screen), (ui::PopoverPlacement{frame, arrow, arrowX}));
}

INSTANTIATE_TEST_SUITE_P(
    Places, PopoverPlacement,
    testing::Values(
        Case{"Below", {500, 400, 40, 26}, {450, 260, 140, 140}, ArrowDirection::Up, 70},
        Case{"JustRoomBelow", {500, 188, 40, 26}, {450, 48, 140, 140}, ArrowDirection::Up, 70},
        Case{"NoRoomBelow", {500, 187, 40, 26}, {450, 213, 140, 140}, ArrowDirection::Down, 70},
        Case{"LeftEdge", {20, 400, 40, 26}, {8, 260, 140, 140}, ArrowDirection::Up, 32},
        Case{"RightEdge", {950, 400, 40, 26}, {852, 260, 140, 140}, ArrowDirection::Up, 113},
        Case{"AnchorCutOff", {-40, 400, 40, 26}, {8, 260, 140, 140}, ArrowDirection::Up, 27}),
    [](const auto& place) { return std::string(place.param.name); });

TEST(PopoverPlacementOddScreens, StaysBelowWhereThereIsRoomNowhereAndWhereThereIsNoScreen) {
    const Rect anchor{500, 100, 40, 26};
    const platform::Screen low{{0, 0, 1000, 200}, {0, 0, 1000, 200}};
    const ui::PopoverPlacement below{{450, -40, 140, 140}, ArrowDirection::Up, 70};
    EXPECT_EQ(ui::placePopover(anchor, body, low), below);
    EXPECT_EQ(ui::placePopover(anchor, body, std::nullopt), below);
}

} // namespace
