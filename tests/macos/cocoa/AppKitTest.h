#pragma once

#include "macos/fakes/cocoa/AppKitFake.h"

#include <gtest/gtest.h>

#include <optional>

/// A fresh AppKit for each test, in which nothing may be left over.
class AppKitTest : public testing::Test {
protected:
    AppKitTest() { appKit = {}; }
    ~AppKitTest() override {
        pool_.reset();
        EXPECT_EQ(cocoaFake::liveObjects(), 0);
        EXPECT_TRUE(cocoaFake::globalMonitors().empty() && cocoaFake::localMonitors().empty());
    }

    /// Lets go of what was only lent, as the event loop does after each event.
    void endTurn() { pool_.emplace(); }

    cocoaFake::AppKit& appKit = cocoaFake::appKit();

private:
    std::optional<cocoaFake::Pool> pool_{std::in_place};
};
