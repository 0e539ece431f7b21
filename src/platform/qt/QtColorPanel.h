#pragma once

#include "platform/ColorPanel.h"
#include "platform/WindowServer.h"

#include <memory>
#include <optional>

class QColorDialog;

namespace platform {

/// The shared colour panel as one colour dialog that nothing shows: its mode is kept and its frame
/// moved. The dialog is made on first use.
class QtColorPanel final : public ColorPanel {
public:
    explicit QtColorPanel(WindowServer& windowServer);
    ~QtColorPanel() override;

    void setMode(ColorPanelMode mode) override;
    Rect frame() override;
    void setFrameOrigin(Point origin) override;

private:
    QColorDialog& dialog();

    WindowServer& windowServer_;
    std::unique_ptr<QColorDialog> dialog_;
    /// The dialog itself has one mode only; whoever shows it one day finds the wanted one here.
    std::optional<ColorPanelMode> mode_;
    Rect frame_;
};

} // namespace platform
