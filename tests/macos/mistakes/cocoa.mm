// Each of these must be refused when the layer's Objective-C++ files are compiled for Apple's target.
// #if MISTAKE == number // what is wrong => what the compiler says of it
#include "platform/macos/CocoaValues.hh"
#include "platform/macos/Strong.hh"

#include <AppKit/AppKit.h>
#include <ScreenCaptureKit/ScreenCaptureKit.h>

void rightAndWrong(NSWindow* window, void* pointer);

void rightAndWrong(NSWindow* window, void* pointer) {
    NSView* view = (__bridge NSView*)pointer;
    window.level = NSFloatingWindowLevel;
    [view.window orderFront:nil];
#if MISTAKE == 1 // a cast that says nothing of who owns the view => requires a bridged cast
    view = (NSView*)pointer;
#elif MISTAKE == 2 // counting references by hand => declares the selector 'release'
    [view release];
#elif MISTAKE == 3 // a message that nothing answers => no visible @interface
    [window orderToFront:nil];
#elif MISTAKE == 4 // a property that can only be read => assignment to readonly property
    view.window = window;
#elif MISTAKE == 5 // a level for a style => assigning to
    [NSColorPanel sharedColorPanel].mode = NSFloatingWindowLevel;
#elif MISTAKE == 6 // an answer that may be missing, where one is needed => from nullable
    [NSWorkspace.sharedWorkspace openURL:[NSURL URLWithString:@"https://example.org"]];
#elif MISTAKE == 7 // null where an object is needed => null passed to a callee that requires a non-null
    [window.contentView addSubview:nil positioned:NSWindowBelow relativeTo:nil];
#elif MISTAKE == 8 // a handler that answers nothing, where the event is expected => cannot initialize a parameter
    [NSEvent addLocalMonitorForEventsMatchingMask:0x400 handler:^(NSEvent*) {}];
#elif MISTAKE == 9 // a string of the toolkit for one of the system => no viable conversion
    [NSURL URLWithString:QString()];
#elif MISTAKE == 10 // one string for an array of strings => cannot initialize
    NSArray<NSString*>* names = NSHomeDirectory();
#elif MISTAKE == 11 // a class that only newer systems have, on all => only available on macOS 14
    [[SCScreenshotManager class] description];
#endif
}
