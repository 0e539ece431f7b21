#pragma once

#include "ui/Element.h"

#include <vector>

namespace ui {

enum class Alignment { Leading, Center };

struct StackOptions {
    /// Between neighbouring children, in points.
    int spacing = 8;
    /// Across the stack.
    Alignment alignment = Alignment::Center;
};

/// Children side by side or one below the other, aligned across. Children that want to grow across
/// the stack fill it.
Element stack(Qt::Orientation axis, StackOptions options, std::vector<Element> children);

template <std::convertible_to<Element>... Children>
std::vector<Element> elements(Children&&... children) {
    std::vector<Element> list;
    list.reserve(sizeof...(children));
    (list.emplace_back(std::forward<Children>(children)), ...);
    return list;
}

template <std::convertible_to<Element>... Children>
Element hstack(StackOptions options, Children&&... children) {
    return stack(Qt::Horizontal, options, elements(std::forward<Children>(children)...));
}

template <std::convertible_to<Element>... Children>
Element vstack(StackOptions options, Children&&... children) {
    return stack(Qt::Vertical, options, elements(std::forward<Children>(children)...));
}

/// Takes the room that a stack's other children leave.
Element spacer();

/// A separator line one point thick that runs along `orientation` as far as it can.
Element divider(Qt::Orientation orientation);

} // namespace ui
