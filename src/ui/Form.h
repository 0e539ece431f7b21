#pragma once

#include "ui/Element.h"
#include "ui/Stack.h"

#include <vector>

namespace ui {

/// Sections one below the other in the grouped style, at the top of the room that there is.
Element form(std::vector<Element> sections);

template <std::convertible_to<Element>... Sections>
Element form(Sections&&... sections) {
    return form(elements(std::forward<Sections>(sections)...));
}

/// Rows on a rounded card, with lines between those that are there, below a title unless that is
/// empty.
Element section(const QString& title, std::vector<Element> rows);

template <std::convertible_to<Element>... Rows>
Element section(const QString& title, Rows&&... rows) {
    return section(title, elements(std::forward<Rows>(rows)...));
}

/// A row that tells a value beside its label.
Element labeledContent(const QString& label, Element value);

} // namespace ui
