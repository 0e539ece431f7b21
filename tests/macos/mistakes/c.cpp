// Each of these must be refused when the layer's C files are compiled for Apple's target.
// #if MISTAKE == number // what is wrong => what the compiler says of it
#include "platform/macos/AxInquiry.h"
#include "platform/macos/CfReference.h"

#include <CoreGraphics/CoreGraphics.h>

void rightAndWrong(AXUIElementRef element, CGEventRef event);

void rightAndWrong(AXUIElementRef element, CGEventRef event) {
    CFTypeRef value = nullptr;
    AXUIElementSetMessagingTimeout(element, 0.25F);
    AXUIElementCopyAttributeValue(element, kAXSelectedTextAttribute, &value);
    CGEventSetFlags(event, kCGEventFlagMaskCommand);
    CGEventPost(kCGHIDEventTap, event);
    const platform::CfReference<CFTypeRef> owned(value);
#if MISTAKE == 1 // null where an object is needed => null passed to a callee that requires a non-null argument
    CFRelease(nullptr);
#elif MISTAKE == 2 // an attribute's name as characters => no matching function
    AXUIElementCopyAttributeValue(element, "AXSelectedText", &value);
#elif MISTAKE == 3 // the value itself instead of a place for it => no matching function
    AXUIElementCopyAttributeValue(element, kAXSelectedTextAttribute, value);
#elif MISTAKE == 4 // a source's state for a tap => no matching function
    CGEventPost(kCGEventSourceStateHIDSystemState, event);
#elif MISTAKE == 5 // the arguments the wrong way round => no matching function
    CGEventPost(event, kCGHIDEventTap);
#elif MISTAKE == 6 // one owner's reference in two => implicitly-deleted copy constructor
    const platform::CfReference<CFTypeRef> second(owned);
#elif MISTAKE == 7 // an owned reference left to nobody => ignoring return value
    platform::CfReference<CFTypeRef>(value).release();
#elif MISTAKE == 8 // an element for a string => cannot initialize a parameter
    platform::toQString(element);
#elif MISTAKE == 9 // a time limit that loses its fraction => implicit conversion from
    const int limit = 0.25;
    AXUIElementSetMessagingTimeout(element, limit);
#endif
}
