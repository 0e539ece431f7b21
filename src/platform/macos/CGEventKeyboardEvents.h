#pragma once

#include "platform/KeyboardEvents.h"

namespace platform {

/// Posts keys as Quartz events. The modifiers travel as flags of the events; no event is posted for
/// a modifier's own key.
class CGEventKeyboardEvents final : public KeyboardEvents {
public:
    std::unique_ptr<EventSource> createSource(EventSourceState state) override;
    std::unique_ptr<KeyEvent> createKeyEvent(const EventSource* source, KeyCode key,
                                             KeyDirection direction) override;
    void post(const KeyEvent& event, EventTap tap) override;
};

} // namespace platform
