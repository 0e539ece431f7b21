#pragma once

#include "bar/TextFormat.h"
#include "core/Published.h"

#include <functional>
#include <utility>

namespace bar {

/// What the bar's views share with whoever shows them: whether the heading picker is open, and to
/// whom each choice is reported.
class FormattingBarViewModel {
public:
    FormattingBarViewModel(std::function<void(TextFormat)> format,
                           std::function<void(HeadingLevel)> heading,
                           std::function<void()> openColorPicker)
        : onFormat(std::move(format))
        , onHeading(std::move(heading))
        , onOpenColorPicker(std::move(openColorPicker)) {}

    core::Published<bool> showHeadingPicker{false};

    const std::function<void(TextFormat)> onFormat;
    const std::function<void(HeadingLevel)> onHeading;
    const std::function<void()> onOpenColorPicker;
};

} // namespace bar
