#pragma once

#include "platform/WindowServer.h"

namespace platform {

/// The program's own windows: the toolkit's, with what it cannot say to AppKit said natively.
class MacWindowServer final : public WindowServer {
public:
    void makeFloating(QWidget& window, KeyboardFocus keyboard) override;
    void setFrame(QWidget& window, const Rect& frame) override;
    Rect frame(const QWidget& window) override;
    Rect frameOnScreen(const QWidget& part) override;
    void orderFront(QWidget& window) override;
    void orderOut(QWidget& window) override;
    /// The token is of no use here: an application may always bring itself forward.
    void bringToFront(QWidget& window, const ActivationToken& token) override;
    bool hasTranslucency() override { return true; }
    bool hasMaterials() override { return true; }
    void setMaterial(const QWidget& part, const WindowMaterial& material) override;
    void becomeAccessory() override;
};

} // namespace platform
