#pragma once

#include "settings/AppSettingsManager.h"
#include "ui/Element.h"

namespace settings {

/// Start at login, what the program is, and the way to the feedback form.
struct GeneralSettingsView {
    AppSettingsManager& appSettings;

    ui::Element body() const;
};

} // namespace settings
