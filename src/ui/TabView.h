#pragma once

#include "ui/Element.h"

#include <vector>

namespace ui {

struct Tab {
    QString title;
    /// A system symbol's name.
    QString symbol;
    Element content;
};

/// One of several pages, with a strip of segments above it to choose among them. It opens on the
/// first.
Element tabView(std::vector<Tab> tabs);

template <std::same_as<Tab>... Tabs>
Element tabView(Tabs... tabs) {
    std::vector<Tab> list;
    (list.push_back(std::move(tabs)), ...);
    return tabView(std::move(list));
}

} // namespace ui
