#pragma once

#include "ui/Binding.h"
#include "ui/LazyList.h"

#include <vector>

namespace ui {

template <typename T>
struct ListOptions {
    int rowHeight = 44;
    QString accessibilityLabel;
    std::function<Element(const T&)> row;
    /// A row's name for assistive technology.
    std::function<QString(const T&)> name;
    /// The keyboard's way to do what a click on the row does.
    std::function<void(const T&)> activate;
};

/// A bordered list with a row for each item, built when it comes into view.
template <typename T>
Element list(Binding<std::vector<T>> items, ListOptions<T> options) {
    auto widget = std::make_unique<LazyList>(options.rowHeight);
    LazyList& rows = *widget;
    rows.setAccessibleName(options.accessibilityLabel);
    rows.viewport()->setAccessibleName(options.accessibilityLabel);
    const auto show = [&rows, options](const std::vector<T>& next) {
        const auto shown = std::make_shared<const std::vector<T>>(next);
        const auto at = [shown](int index) -> const T& {
            return (*shown)[static_cast<std::size_t>(index)];
        };
        rows.setRows({static_cast<int>(shown->size()),
                      [=](int index) { return options.row(at(index)); },
                      [=](int index) { return options.name(at(index)); },
                      [=](int index) { options.activate(at(index)); }});
    };
    show(items->get());
    keep(rows, std::pair(items, items->observe(show)));
    return Element(std::move(widget));
}

} // namespace ui
