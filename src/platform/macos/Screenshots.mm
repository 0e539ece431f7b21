#include "platform/macos/Screenshots.h"

#include "platform/macos/CocoaValues.hh"
#include "platform/macos/QuartzImage.h"
#include "platform/macos/Strong.hh"

#include <ScreenCaptureKit/ScreenCaptureKit.h>

#include <future>
#include <memory>

namespace platform::screenshots {

namespace {

using Clock = std::chrono::steady_clock;
using Content = Strong<SCShareableContent*>;

Rect toRect(CGRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

/// What a completion handler gives, from whatever thread; nothing when it comes too late.
template <typename Value>
class Awaited {
public:
    void give(Value value) const { promise_->set_value(std::move(value)); }

    Value take(Clock::time_point deadline) const {
        auto answer = promise_->get_future();
        return answer.wait_until(deadline) == std::future_status::ready ? answer.get() : Value();
    }

private:
    // The handler may come when nobody waits any more.
    std::shared_ptr<std::promise<Value>> promise_ = std::make_shared<std::promise<Value>>();
};

Content everything(Clock::time_point deadline) {
    const Awaited<Content> content;
    [SCShareableContent
        getShareableContentExcludingDesktopWindows:NO
                               onScreenWindowsOnly:YES
                                 completionHandler:^(SCShareableContent* found, NSError*) {
                                   content.give(Content(found));
                                 }];
    return content.take(deadline);
}

Content everythingBelow(SCWindow* window, Clock::time_point deadline) {
    const Awaited<Content> content;
    [SCShareableContent
        getShareableContentExcludingDesktopWindows:NO
                    onScreenWindowsOnlyBelowWindow:window
                                 completionHandler:^(SCShareableContent* found, NSError*) {
                                   content.give(Content(found));
                                 }];
    return content.take(deadline);
}

Content contentBelow(std::uint32_t number, Clock::time_point deadline) {
    Content all = everything(deadline);
    if (number == 0) {
        return all;
    }
    for (SCWindow* window in all.get().windows) {
        if (window.windowID == number) {
            return everythingBelow(window, deadline);
        }
    }
    return {};
}

API_AVAILABLE(macos(14.0))
QImage picture(SCDisplay* display, NSArray<SCWindow*>* windows, Clock::time_point deadline) {
    const auto filter =
        Strong<SCContentFilter*>::adopt([[SCContentFilter alloc] initWithDisplay:display
                                                                includingWindows:windows]);
    const auto configuration =
        Strong<SCStreamConfiguration*>::adopt([[SCStreamConfiguration alloc] init]);
    const double scale = filter.get().pointPixelScale;
    const CGSize size = filter.get().contentRect.size;
    configuration.get().width = static_cast<std::size_t>(size.width * scale);
    configuration.get().height = static_cast<std::size_t>(size.height * scale);
    configuration.get().showsCursor = NO;
    configuration.get().ignoreShadowsDisplay = YES;
    const Awaited<QImage> image;
    [SCScreenshotManager captureImageWithFilter:filter.get()
                                  configuration:configuration.get()
                              completionHandler:^(CGImageRef taken, NSError*) {
                                image.give(toQImage(taken));
                              }];
    return image.take(deadline);
}

} // namespace

bool areAvailable() {
    if (@available(macOS 14.0, *)) {
        return true;
    }
    return false;
}

std::optional<ScreenContents> below(std::uint32_t window, std::chrono::milliseconds limit) {
    if (@available(macOS 14.0, *)) {
        @autoreleasepool {
            const Clock::time_point deadline = Clock::now() + limit;
            const Content content = contentBelow(window, deadline);
            ScreenContents result;
            for (SCWindow* shown in content.get().windows) {
                result.windows.push_back(toRect(shown.frame));
            }
            for (SCDisplay* display in content.get().displays) {
                QImage taken = picture(display, content.get().windows, deadline);
                if (taken.isNull()) {
                    return std::nullopt;
                }
                result.displays.push_back({toRect(display.frame), std::move(taken)});
            }
            return content ? std::optional(std::move(result)) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace platform::screenshots
