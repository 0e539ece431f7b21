#pragma once

#include "platform/KeyboardEvents.h"
#include "ui/Binding.h"
#include "ui/Element.h"

#include <cstdint>

namespace settings {

/// Places the view that records keys among the others and keeps it in step with three values.
struct ShortcutRecorderView {
    ui::Binding<std::uint16_t> keyCode;
    ui::Binding<std::uint64_t> modifiers;
    ui::Binding<bool> isRecording;

    ui::Element body() const;
};

} // namespace settings
