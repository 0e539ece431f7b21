#include "macos/fakes/cocoa/ScreenshotsFake.h"

#include "macos/fakes/cocoa/Objects.hh"

#include <ScreenCaptureKit/ScreenCaptureKit.h>

#include <Block.h>
#include <QImage>

#include <functional>
#include <thread>

using cocoaFake::Capture;
using cocoaFake::Display;
using cocoaFake::screenshots;
using cocoaFake::ShownWindow;
using cocoaFake::stateOf;

namespace {

struct Filter {
    Display display;
    Capture capture;
};

struct Content {
    NSMutableArray* windows = nil;
    NSMutableArray* displays = nil;
};

CGRect toCGRect(const platform::Rect& rect) {
    return {{rect.x, rect.y}, {rect.width, rect.height}};
}

SCShareableContent* content(std::uint32_t below) {
    if (screenshots().refuses) {
        return nil;
    }
    SCShareableContent* const made = [[[SCShareableContent alloc] init] autorelease];
    auto& state = stateOf<Content>(made);
    state = {[NSMutableArray array], [NSMutableArray array]};
    bool reached = below == 0;
    for (const auto& window : screenshots().windows) {
        if (reached) {
            SCWindow* const object = [[[SCWindow alloc] init] autorelease];
            stateOf<ShownWindow>(object) = window;
            [state.windows addObject:object];
        }
        reached = reached || window.number == below;
    }
    for (const auto& display : screenshots().displays) {
        SCDisplay* const object = [[[SCDisplay alloc] init] autorelease];
        stateOf<Display>(object) = display;
        [state.displays addObject:object];
    }
    return made;
}

void answer(const std::function<void()>& call) {
    switch (screenshots().answers) {
    case cocoaFake::Answers::Now:
        call();
        break;
    case cocoaFake::Answers::FromAnotherThread:
        std::thread(call).join();
        break;
    case cocoaFake::Answers::Never:
        ++screenshots().unanswered;
        break;
    }
}

} // namespace

@implementation SCWindow
ANSWERS(CGWindowID, windowID, ShownWindow, number)
- (CGRect)frame {
    return toCGRect(stateOf<ShownWindow>(self).frame);
}
@end

@implementation SCDisplay
- (CGRect)frame {
    return toCGRect(stateOf<Display>(self).frame);
}
@end

@implementation SCShareableContent
+ (void)getShareableContentExcludingDesktopWindows:(BOOL)excluding
                               onScreenWindowsOnly:(BOOL)onScreen
                                 completionHandler:(SCShareableContentHandler)handler {
    SCShareableContent* const found = excluding || !onScreen ? nil : content(0);
    answer([&] { handler(found, nil); });
}
+ (void)getShareableContentExcludingDesktopWindows:(BOOL)excluding
                    onScreenWindowsOnlyBelowWindow:(SCWindow*)window
                                 completionHandler:(SCShareableContentHandler)handler {
    SCShareableContent* const found = excluding ? nil : content(window.windowID);
    answer([&] { handler(found, nil); });
}
ANSWERS(NSArray*, windows, Content, windows)
ANSWERS(NSArray*, displays, Content, displays)
@end

@implementation SCContentFilter
COUNTED(Filter)
- (id)initWithDisplay:(SCDisplay*)display includingWindows:(NSArray*)windows {
    self = [self init];
    auto& filter = stateOf<Filter>(self);
    filter.display = stateOf<Display>(display);
    for (NSUInteger index = 0; index < [windows count]; ++index) {
        filter.capture.windows.push_back(
            stateOf<ShownWindow>([windows objectAtIndex:index]).number);
    }
    return self;
}
- (float)pointPixelScale {
    return static_cast<float>(stateOf<Filter>(self).display.pixelsPerPoint);
}
- (CGRect)contentRect {
    return toCGRect(stateOf<Filter>(self).display.frame);
}
@end

@implementation SCStreamConfiguration
COUNTED(Capture)
- (void)setWidth:(std::size_t)width {
    stateOf<Capture>(self).pixels.setWidth(static_cast<int>(width));
}
- (void)setHeight:(std::size_t)height {
    stateOf<Capture>(self).pixels.setHeight(static_cast<int>(height));
}
RECORDS(setShowsCursor, BOOL, Capture, cursor)
- (void)setIgnoreShadowsDisplay:(BOOL)ignore {
    stateOf<Capture>(self).shadows = !ignore;
}
@end

@implementation SCScreenshotManager
+ (void)captureImageWithFilter:(SCContentFilter*)filter
                 configuration:(SCStreamConfiguration*)configuration
             completionHandler:(void (^)(CGImageRef, NSError*))handler {
    Capture capture = stateOf<Capture>(configuration);
    capture.windows = stateOf<Filter>(filter).capture.windows;
    screenshots().captures.push_back(capture);
    QImage image(capture.pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(stateOf<Filter>(filter).display.color);
    answer([&] { handler(reinterpret_cast<CGImageRef>(&image), nil); });
}
@end

namespace cocoaFake {

Screenshots& screenshots() {
    static Screenshots state;
    return state;
}

} // namespace cocoaFake
