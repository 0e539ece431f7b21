#pragma once

#include "platform/Geometry.h"

#include <string>
#include <vector>

/// What was asked of the toolkit's windows, which here are not AppKit's; "early" is a window that
/// was not visible yet.
struct NativeWindowRecord {
    std::vector<std::string> calls;
    platform::Rect materialFrame;
};

NativeWindowRecord& nativeWindowRecord();
