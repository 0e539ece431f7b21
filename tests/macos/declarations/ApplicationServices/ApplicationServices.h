#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>

#include <sys/types.h>

QUILLET_ASSUME_NONNULL_BEGIN
extern "C" {

// applicationservices/axuielement, axvalue
using AXUIElementRef = const struct __AXUIElement*;
using AXValueRef = const struct __AXValue*;

// applicationservices/axerror
enum AXError : SInt32 {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorIllegalArgument = -25201,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorNotImplemented = -25208,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212,
    kAXErrorParameterizedAttributeUnsupported = -25213,
};

// applicationservices/axvaluetype
enum AXValueType : UInt32 {
    kAXValueTypeIllegal = 0,
    kAXValueTypeCGPoint = 1,
    kAXValueTypeCGSize = 2,
    kAXValueTypeCGRect = 3,
    kAXValueTypeCFRange = 4,
    kAXValueTypeAXError = 5,
};

// applicationservices/1460720-axisprocesstrusted, 1459186-axisprocesstrustedwithoptions,
// kaxtrustedcheckoptionprompt
Boolean AXIsProcessTrusted();
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef _Nullable options);
extern CFStringRef kAXTrustedCheckOptionPrompt;

// applicationservices/1460085-axuielementgettypeid, 1459374-axuielementcreateapplication
CFTypeID AXUIElementGetTypeID();
AXUIElementRef AXUIElementCreateApplication(pid_t pid);

// applicationservices/1459345-axuielementsetmessagingtimeout: of this reference only; 0 gives it
// the process's own, long limit back
AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float timeoutInSeconds);

// applicationservices/1462085-axuielementcopyattributevalue
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef attribute,
                                      CFTypeRef _Nullable* _Nonnull value);

// applicationservices/1461203-axuielementcopyparameterizedattr
AXError AXUIElementCopyParameterizedAttributeValue(AXUIElementRef element,
                                                   CFStringRef parameterizedAttribute,
                                                   CFTypeRef parameter,
                                                   CFTypeRef _Nullable* _Nonnull result);

// applicationservices/1460780-axvaluegettypeid, 1462933-axvaluegetvalue
CFTypeID AXValueGetTypeID();
Boolean AXValueGetValue(AXValueRef value, AXValueType theType, void* valuePtr);

} // extern "C"
QUILLET_ASSUME_NONNULL_END

// applicationservices/carbon_accessibility/attributes: macros in the SDK, too
#define kAXFocusedUIElementAttribute CFSTR("AXFocusedUIElement")
#define kAXSelectedTextAttribute CFSTR("AXSelectedText")
#define kAXSelectedTextRangeAttribute CFSTR("AXSelectedTextRange")
#define kAXSubroleAttribute CFSTR("AXSubrole")
#define kAXBoundsForRangeParameterizedAttribute CFSTR("AXBoundsForRange")

// applicationservices/carbon_accessibility/subroles
#define kAXSecureTextFieldSubrole CFSTR("AXSecureTextField")
