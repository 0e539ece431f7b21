#pragma once

#include "platform/KeyPresses.h"

#include <QWidget>

#include <functional>

namespace slash {

/// Turns the arrow keys, Return and Escape into callbacks, whatever modifiers are held. These keys
/// end here even when nobody wants them; all others go on.
class KeyboardHandlingView final : public QWidget {
public:
    /// `keyPresses` must outlive the view.
    explicit KeyboardHandlingView(platform::KeyPresses& keyPresses);

    std::function<void()> onUpArrow;
    std::function<void()> onDownArrow;
    std::function<void()> onReturn;
    std::function<void()> onEscape;

    /// Handles a key that was pressed here or in what the view contains; answers whether it was one
    /// of the four.
    bool keyDown(const QKeyEvent& event);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    platform::KeyPresses& keyPresses_;
};

} // namespace slash
