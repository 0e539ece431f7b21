#pragma once

#include "platform/linux/atspi/AtSpiAccessibility.h"
#include "platform/linux/atspi/FakeDesktop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace fakes {

/// Windows that stand where the test puts them.
struct StillWindows final : platform::ApplicationWindows {
    std::optional<platform::PixelRect> clientArea = platform::PixelRect{0, 0, 1920, 1080};
    platform::PixelGeometry geometry;

    std::optional<platform::PixelRect>
    activeWindowClientArea(platform::ProcessIdentifier) override {
        return clientArea;
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

    void start() {
        accessibility.emplace(windows, desktop.session(), limits);
        ASSERT_TRUE(accessibility->isProcessTrusted(platform::TrustPrompt::Hidden));
    }

    /// A window with one text in it, which has the focus.
    static FakeObject focusedText(const QString& text,
                                  std::vector<std::pair<int, int>> selections) {
        FakeObject object;
        object.states = {platform::State::Focused, platform::State::Editable};
        object.parent = QStringLiteral("/window");
        object.text = text;
        object.selections = std::move(selections);
        return object;
    }

    void show(FakeApplication& application, const FakeObject& text) {
        FakeObject root;
        root.children = {QStringLiteral("/window")};
        FakeObject window;
        window.states = {platform::State::Active};
        window.hasText = false;
        window.children = {QStringLiteral("/text")};
        application.set(QStringLiteral("root"), root);
        application.set(QStringLiteral("/window"), window);
        application.set(QStringLiteral("/text"), text);
        application.answerSearch({QStringLiteral("/text")});
    }

    Look look() {
        const int before = accessibility->callCount();
        const auto application =
            accessibility->applicationElement(QCoreApplication::applicationPid());
        const auto element = accessibility->focusedElement(application);
        Look result;
        result.focused = element != nullptr;
        result.text = accessibility->selectedText(element);
        if (const auto range = accessibility->selectedTextRange(element)) {
            result.bounds = accessibility->boundsForRange(element, range);
        }
        result.calls = accessibility->callCount() - before;
        return result;
    }

    /// Lets events come in until `condition` holds.
    template <typename Condition>
    static bool eventually(Condition condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition()) {
            if (timer.hasExpired(5000)) {
                return false;
            }
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents,
                                            5);
        }
        return true;
    }

    FakeDesktop desktop;
    StillWindows windows;
    platform::ReadingLimits limits;
    std::optional<platform::AtSpiAccessibility> accessibility;
};

} // namespace fakes
