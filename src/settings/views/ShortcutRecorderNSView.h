#pragma once

#include "platform/KeyPresses.h"

#include <QWidget>

#include <functional>

namespace settings {

/// While recording, takes the next key press that carries at least one modifier. It draws nothing
/// and has no size of its own.
class ShortcutRecorderNSView final : public QWidget {
public:
    /// `keyPresses` must outlive the view.
    explicit ShortcutRecorderNSView(platform::KeyPresses& keyPresses);

    /// Key code and modifiers of a key press that was recorded.
    std::function<void(platform::KeyCode, std::uint64_t)> onKeyRecorded;
    bool isRecording = false;

    QSize sizeHint() const override { return {0, 0}; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    platform::KeyPresses& keyPresses_;
};

} // namespace settings
