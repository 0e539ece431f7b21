#pragma once

#include "macos/fakes/c/Objects.h"

#include <CoreGraphics/CoreGraphics.h>

#include <functional>
#include <vector>

namespace appleFake {

struct PostedEvent {
    CGEventTapLocation tap = kCGSessionEventTap;
    CGKeyCode key = 0;
    bool isDown = false;
    CGEventFlags flags = 0;
    double time = 0;

    bool operator==(const PostedEvent&) const = default;
};

struct Events {
    bool sourceCanBeMade = true;
    bool keyDownCanBeMade = true;
    bool keyUpCanBeMade = true;
    std::vector<CGEventSourceStateID> sources;
    /// What a new event has from its source, such as Caps Lock.
    CGEventFlags flagsOfSource = 0;
    std::vector<PostedEvent> posted;
    std::function<double()> clock = [] { return 0.0; };
    bool screenRecordingIsPermitted = false;
    int screenRecordingRequests = 0;
};

/// The one that the process posts to. Assign to it to start over.
Events& events();

} // namespace appleFake
