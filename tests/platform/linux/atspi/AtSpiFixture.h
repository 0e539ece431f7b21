#pragma once

#include "fakes/Eventually.h"
#include "platform/linux/atspi/AtSpiAccessibility.h"
#include "platform/linux/atspi/FakeDesktop.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace fakes {

/// Windows that stand where the test puts them.
struct StillWindows final : platform::ApplicationWindows {
    std::optional<platform::PixelRect> clientArea = platform::PixelRect{0, 0, 1920, 1080};
    /// Without the shadow, where there is one.
    std::optional<platform::PixelRect> visible;
    platform::PixelGeometry geometry;

    std::optional<platform::WindowPlace> placeOfActiveWindow(platform::ProcessIdentifier) override {
        if (!clientArea) {
            return std::nullopt;
        }
        return platform::WindowPlace{*clientArea, visible.value_or(*clientArea)};
    }
    platform::PixelGeometry pixelGeometry() override { return geometry; }
};

/// What one poll found out.
struct Look {
    bool focused = false;
    std::optional<QString> text;
    std::optional<platform::Rect> bounds;
    /// How many messages it took.
    int calls = 0;
};

/// A fake desktop with one application, and the layer that reads it.
class AtSpiFixture : public testing::Test {
protected:
    AtSpiFixture() {
        limits.longestTrust = std::chrono::hours(1);
        limits.deadline = std::chrono::seconds(5);
    }

    /// The layer anew, as after a start of the program.
    void start() {
        accessibility.emplace(windows, desktop.session(), limits);
        ASSERT_TRUE(accessibility->isProcessTrusted(platform::TrustPrompt::Hidden));
    }

    /// A window with one text in it, which has the focus.
    static FakeObject focusedText(const QString& text,
                                  std::vector<std::pair<int, int>> selections) {
        return {.states = {platform::State::Focused, platform::State::Editable},
                .parent = QStringLiteral("/window"),
                .text = text,
                .selections = std::move(selections)};
    }

    void show(const FakeObject& text) {
        application.set(QStringLiteral("root"), {.children = {QStringLiteral("/window")}});
        application.set(QStringLiteral("/window"), {.states = {platform::State::Active},
                                                    .hasText = false,
                                                    .children = {QStringLiteral("/text")}});
        application.set(QStringLiteral("/text"), text);
        application.answerSearch({QStringLiteral("/text")});
    }

    Look look() {
        const int before = accessibility->callCount();
        const auto element = accessibility->focusedElement(
            accessibility->applicationElement(QCoreApplication::applicationPid()));
        Look result;
        result.focused = element != nullptr;
        result.text = accessibility->selectedText(element);
        if (const auto range = accessibility->selectedTextRange(element)) {
            result.bounds = accessibility->boundsForRange(element, range);
        }
        result.calls = accessibility->callCount() - before;
        return result;
    }

    FakeDesktop desktop;
    FakeApplication& application = desktop.application;
    StillWindows windows;
    platform::ReadingLimits limits;
    std::optional<platform::AtSpiAccessibility> accessibility;
};

} // namespace fakes
