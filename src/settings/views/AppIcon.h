#pragma once

#include "platform/ApplicationIcons.h"
#include "ui/Element.h"

#include <optional>

namespace settings {

/// An application's picture, stretched to 24 by 24 points, or the symbol of any application. It is
/// fetched when it is first drawn, one picture in each turn of the event loop.
struct AppIcon {
    std::optional<platform::IconReference> icon;

    ui::Element body() const;
};

} // namespace settings
