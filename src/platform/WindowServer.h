#pragma once

#include "platform/ActivationToken.h"
#include "platform/Geometry.h"

#include <cstdint>

class QWidget;

namespace platform {

/// Whether a floating window ever has the keyboard.
enum class KeyboardFocus {
    /// It never takes the keyboard or a grab, also when it is clicked.
    Never,
    /// It takes the keyboard when it is brought to the front, and when it is clicked.
    WhenInFront,
};

/// The materials that a translucent background can be of.
enum class VisualEffectMaterial { HudWindow = 13 };

/// What shows through it.
enum class VisualEffectBlendingMode { BehindWindow = 0 };

/// A material that shows, blurred, what lies behind a window, and looks the same whether or not the
/// program is in front. The first two are the numbers of the system that has materials, as above.
struct WindowMaterial {
    int material = 0;
    int blendingMode = 0;
    double cornerRadius = 0;
};

/// What the window system does with the program's own windows. Main thread only.
class WindowServer {
public:
    virtual ~WindowServer() = default;

    /// Turns a top-level widget that was not shown yet into a borderless window that floats above
    /// ordinary ones, has a shadow and cannot be moved by the user. One that never has the
    /// keyboard is on every desktop.
    virtual void makeFloating(QWidget& window, KeyboardFocus keyboard) = 0;

    virtual void setFrame(QWidget& window, const Rect& frame) = 0;
    virtual Rect frame(const QWidget& window) = 0;

    /// The frame of a part of a window, on the screen.
    virtual Rect frameOnScreen(const QWidget& part) = 0;

    /// Shows a window in front of the others without making it the key window.
    virtual void orderFront(QWidget& window) = 0;
    virtual void orderOut(QWidget& window) = 0;

    /// Shows a window that may have the keyboard in front of all others, whatever application is
    /// active, and makes it the key window. `token` is what the desktop gave for the user's deed
    /// that asked for it.
    virtual void bringToFront(QWidget& window, const ActivationToken& token) = 0;

    /// Whether what a window leaves transparent shows what lies below it.
    virtual bool hasTranslucency() = 0;

    /// Whether setMaterial() does anything. Where it does not, a window paints a fill instead.
    virtual bool hasMaterials() = 0;

    /// Lays a material behind what a floating window draws, where `part` of it is now. A window has
    /// one material; its place is told anew when the part has moved.
    virtual void setMaterial(const QWidget& part, const WindowMaterial& material) = 0;

    /// Turns the process into a menu-bar accessory: no icon among the running applications.
    virtual void becomeAccessory() = 0;
};

} // namespace platform
