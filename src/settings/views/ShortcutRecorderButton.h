#pragma once

#include "settings/AppSettingsManager.h"
#include "ui/Binding.h"
#include "ui/Element.h"

#include <cstdint>

namespace settings {

/// Shows the shortcut, or that it waits for one; a click starts and calls off the recording.
struct ShortcutRecorderButton {
    /// What the label shows.
    AppSettingsManager& appSettings;
    ui::Binding<std::uint16_t> keyCode;
    ui::Binding<std::uint64_t> modifiers;
    ui::Binding<bool> isRecording;

    ui::Element body() const;
};

} // namespace settings
