#pragma once

#include "settings/AppSettingsManager.h"
#include "ui/Binding.h"
#include "ui/Element.h"

namespace settings {

/// How the bar is triggered: by itself after a delay, or by a shortcut.
struct BehaviorSettingsView {
    AppSettingsManager& appSettings;
    ui::Binding<bool> isRecordingShortcut = ui::state(false);

    ui::Element body() const;
};

} // namespace settings
