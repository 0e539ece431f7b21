#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"

namespace ui {

struct TextEditorOptions {
    int minimumHeight = 0;
    QString accessibilityLabel;
    /// The user can read, scroll and copy, and not change it.
    bool isReadOnly = false;
};

/// Several lines of plain text that the user can edit. Tab leaves it.
Element textEditor(Binding<QString> text, const TextEditorOptions& options);

} // namespace ui
