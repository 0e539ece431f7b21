#pragma once

#include <cstdint>
#include <memory>

namespace platform {

/// Modifier flags of key events, and the mask of the four that make a shortcut.
namespace modifierFlags {
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;
inline constexpr std::uint64_t command = 0x100000;
inline constexpr std::uint64_t mask = shift | control | option | command;
} // namespace modifierFlags

/// A virtual key code names a key's position, not its character.
using KeyCode = std::uint16_t;

enum class EventSourceState { HidSystem = 1 };
enum class EventTap { Hid = 0 };
enum class KeyDirection { Down, Up };

struct EventSource {
    virtual ~EventSource() = default;
};

struct KeyEvent {
    virtual ~KeyEvent() = default;

    /// Replaces the flags that the event's source gave it.
    virtual void setFlags(std::uint64_t flags) = 0;
};

/// Synthetic key presses, delivered like those of the real keyboard. Main thread only.
class KeyboardEvents {
public:
    virtual ~KeyboardEvents() = default;

    /// Null when there is no such source; events can be made without one.
    virtual std::unique_ptr<EventSource> createSource(EventSourceState state) = 0;

    /// Null when the event cannot be made.
    virtual std::unique_ptr<KeyEvent> createKeyEvent(const EventSource* source, KeyCode key,
                                                     KeyDirection direction) = 0;

    virtual void post(const KeyEvent& event, EventTap tap) = 0;
};

} // namespace platform
