#pragma once

#include "platform/Geometry.h"

#include <QString>
#include <qwindowdefs.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// AppKit as tests see it: what it answers, and a record of what was asked of it. Objective-C types
/// stay in the fakes' own *.mm files.
namespace cocoaFake {

struct Application {
    int processIdentifier = 0;
    std::optional<QString> bundleIdentifier = std::nullopt;
    std::optional<QString> localizedName = std::nullopt;
    std::optional<QString> bundlePath = std::nullopt;
    std::optional<QString> executablePath = std::nullopt;
    int activationPolicy = 0;
};

struct Screen {
    platform::Rect frame;
    platform::Rect visibleFrame;
};

struct Window {
    unsigned long styleMask = 0xffff;
    long level = 0;
    unsigned long collectionBehavior = 0;
    bool hasShadow = false;
    bool movable = true;
    bool opaque = true;
    bool clear = false;
    int shadowsComputed = 0;
    std::vector<std::string> ordered;
};

/// A blurring view as it stands among its siblings.
struct Effect {
    std::size_t positionFromBack = 0;
    long material = -1;
    long blendingMode = -1;
    long state = -1;
    double cornerRadius = 0;
    bool masksToBounds = false;
    platform::Rect frame;
    /// What it is cut to.
    platform::Rect clip;
    double clipRadius = 0;

    bool operator==(const Effect&) const = default;
};

struct AppKit {
    std::vector<Application> running;
    std::optional<int> frontmost;
    /// Process and options of each request to come to the front.
    std::vector<std::pair<int, unsigned long>> activations;
    std::vector<QString> openedUrls;
    bool opensUrls = true;

    std::vector<Screen> screens;
    std::optional<std::size_t> mainScreen;
    platform::Point mouseLocation;

    std::optional<long> keyWindowNumber;
    bool refusesMonitors = false;
    std::optional<long> activationPolicy;
    bool isActive = false;
    /// Whether each request to come forward insisted.
    std::vector<bool> forward;

    long colorPanelMode = 0;
    platform::Rect colorPanelFrame;
};

AppKit& appKit();

/// The masks of the monitors that are installed, global and local ones apart.
std::vector<unsigned long long> globalMonitors();
std::vector<unsigned long long> localMonitors();
/// Sends an event to every monitor whose mask has it. Answers how many local ones swallowed it.
struct KeyDown {
    unsigned short keyCode = 0;
    unsigned long modifierFlags = 0;
    bool repeated = false;
};
void keyDownElsewhere(const KeyDown& key);
void pressElsewhere();
int pressHere();

/// A window with its content view, as the toolkit makes one; lives until closeWindow().
WId openWindow(const platform::Rect& frame);
void closeWindow(WId view);
const Window& windowOf(WId view);
/// The blurring views of the window.
std::vector<Effect> effectsOf(WId view);

/// The options of the areas in which the pointer is followed over the view.
std::vector<unsigned long> followed(WId view);
/// What the system tells the owners of these areas.
enum class PointerEvent { Entered, Moved, Exited };
void pointerOver(WId view, PointerEvent event);

/// The fakes' objects that are still alive, those of openWindow() included.
int liveObjects();

/// What objects are left to while a test runs; emptied at its end.
class Pool {
public:
    Pool();
    ~Pool();
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

private:
    void* pool_;
};

} // namespace cocoaFake
