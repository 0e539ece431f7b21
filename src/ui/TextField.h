#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"

#include <functional>

class QKeyEvent;

namespace ui {

enum class TextFieldStyle { Plain, RoundedBorder };

struct TextFieldOptions {
    TextFieldStyle style = TextFieldStyle::RoundedBorder;
    double pointSize = 13;
    /// Return was pressed.
    std::function<void()> onSubmit = nullptr;
    /// Takes the keyboard when it becomes true, and says whether it has it. Null: nobody asks.
    Binding<bool> isFocused = nullptr;
    /// Gets each key press before the field does, unless an input method is composing; answers
    /// whether it took it.
    std::function<bool(QKeyEvent&)> onKeyPress = nullptr;
};

/// One line of text that the user can edit.
Element textField(const QString& placeholder, Binding<QString> text, TextFieldOptions options = {});

} // namespace ui
