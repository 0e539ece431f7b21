#include "settings/views/GeneralSettingsView.h"

#include "core/NotificationCenter.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/PushButton.h"
#include "ui/Toggle.h"

namespace settings {

ui::Element GeneralSettingsView::body() const {
    using ui::Color;
    using ui::TextStyle;
    return ui::form(
        ui::section(QStringLiteral("Startup"), ui::toggle(QStringLiteral("Start at Login"),
                                                          ui::binding(appSettings.startAtLogin))),
        ui::section(QStringLiteral("About"),
                    ui::text(QStringLiteral("Corvane Quillet v1.0.2"),
                             ui::textOptions(TextStyle::Body, Color::SecondaryLabel)),
                    ui::text(QStringLiteral("A floating formatting bar for text editing"),
                             ui::textOptions(TextStyle::Caption, Color::SecondaryLabel))),
        ui::section(
            QStringLiteral("Hilfe"), ui::pushButton(QStringLiteral("Feedback senden …"), {}, [] {
                core::NotificationCenter::defaultCenter().post(QStringLiteral("showFeedbackSheet"));
            })));
}

} // namespace settings
