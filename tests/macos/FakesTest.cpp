#include "macos/fakes/c/AccessibilityFake.h"
#include "macos/fakes/c/EventsFake.h"

#include <gtest/gtest.h>

#include <array>

namespace {

/// What the real system answers with a crash or worse must not pass unnoticed here.
TEST(AppleFakesDeathTest, MisuseEndsTheProcess) {
    EXPECT_DEATH(CFRelease(nullptr), "null");
    EXPECT_DEATH(CFGetTypeID(nullptr), "null");
    int nothing = 0;
    EXPECT_DEATH(CFRelease(&nothing), "no object");

    const auto string = static_cast<CFStringRef>(appleFake::newString(u"text"));
    std::array<UniChar, 8> buffer{};
    EXPECT_DEATH(CFStringGetCharacters(string, {2, 3}, buffer.data()), "outside");
    EXPECT_DEATH(CGEventSetFlags(reinterpret_cast<CGEventRef>(const_cast<__CFString*>(string)), 0),
                 "another type");
    CFRetain(string);
    CFRelease(string);
    EXPECT_EQ(CFStringGetLength(string), 4);
    CFRelease(string);
    EXPECT_DEATH(CFRelease(string), "after its release");
    EXPECT_DEATH(CFStringGetLength(string), "after its release");
}

} // namespace
