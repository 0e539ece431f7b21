#pragma once

#include "platform/WindowServer.h"
#include "platform/linux/x11/XcbConnection.h"

#include <memory>

namespace platform {

/// The program's own windows on an X server. A floating window that never has the
/// keyboard goes past the window manager: it stands on every desktop and above full screen.
class X11WindowServer final : public WindowServer {
public:
    explicit X11WindowServer(std::shared_ptr<XcbConnection> connection);

    void makeFloating(QWidget& window, KeyboardFocus keyboard) override;
    void setFrame(QWidget& window, const Rect& frame) override;
    Rect frame(const QWidget& window) override;
    Rect frameOnScreen(const QWidget& part) override;
    void orderFront(QWidget& window) override;
    void orderOut(QWidget& window) override;
    void bringToFront(QWidget& window, const ActivationToken& token) override;
    bool hasTranslucency() override;
    bool hasMaterials() override { return false; }
    void setMaterial(const QWidget&, const WindowMaterial&) override {}
    void becomeAccessory() override;

private:
    bool hasWindowManager();

    std::shared_ptr<XcbConnection> connection_;
};

} // namespace platform
