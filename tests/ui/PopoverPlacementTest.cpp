#include "ui/PopoverPlacement.h"

#include <gtest/gtest.h>

namespace {

using platform::Rect;

TEST(PopoverPlacement, PointsAtTheAnchorFromInsideTheScreenWhereThereIsRoom) {
    constexpr auto up = ui::ArrowDirection::Up;
    constexpr auto down = ui::ArrowDirection::Down;
    const platform::Screen screen{{0, 0, 1000, 800}, {0, 40, 1000, 735}};
    const platform::Screen low{{0, 0, 1000, 200}, {0, 0, 1000, 200}};
    const struct {
        const char* where;
        Rect anchor;
        std::optional<platform::Screen> screen;
        ui::PopoverPlacement expected;
    } rows[]{
        {"below", {500, 400, 40, 26}, screen, {{450, 260, 140, 140}, up, 70}},
        {"just room below", {500, 188, 40, 26}, screen, {{450, 48, 140, 140}, up, 70}},
        {"no room below", {500, 187, 40, 26}, screen, {{450, 213, 140, 140}, down, 70}},
        {"left edge", {20, 400, 40, 26}, screen, {{8, 260, 140, 140}, up, 32}},
        {"right edge", {950, 400, 40, 26}, screen, {{852, 260, 140, 140}, up, 113}},
        {"an anchor that is cut off", {-40, 400, 40, 26}, screen, {{8, 260, 140, 140}, up, 27}},
        {"no room anywhere", {500, 100, 40, 26}, low, {{450, -40, 140, 140}, up, 70}},
        {"no screen", {500, 100, 40, 26}, std::nullopt, {{450, -40, 140, 140}, up, 70}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ui::placePopover(row.anchor, {140, 130}, row.screen), row.expected) << row.where;
    }
}

} // namespace
