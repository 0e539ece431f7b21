#pragma once

#include "ui/Binding.h"
#include "ui/Element.h"

#include <functional>

namespace ui {

enum class ButtonStyle { Bordered, Prominent };

/// The key that presses a button wherever in its window the keyboard is: Return, or Escape.
enum class ButtonKey { None, Default, Cancel };

struct PushButtonOptions {
    ButtonStyle style = ButtonStyle::Bordered;
    ButtonKey key = ButtonKey::None;
    /// Null: always.
    Binding<bool> isEnabled = nullptr;
};

/// A button with a bezel and a title.
Element pushButton(Binding<QString> title, PushButtonOptions options, std::function<void()> action);
Element pushButton(const QString& title, PushButtonOptions options, std::function<void()> action);

} // namespace ui
