#include "macos/fakes/c/AccessibilityFake.h"
#include "platform/linux/atspi/AtSpiFixture.h"
#include "platform/macos/AxAccessibility.h"

/// What the program above sees of the same field must not depend on the system below.
namespace {

using namespace Qt::StringLiterals;
using platform::Rect;

/// What the monitor makes of one poll: it looks for bounds when there is a text, and takes zero
/// bounds and none for the same.
struct Seen {
    bool focus = false;
    std::optional<QString> text;
    Rect bounds;

    bool operator==(const Seen&) const = default;
};

Seen seenBy(platform::Accessibility& accessibility, platform::ProcessIdentifier process) {
    const auto element = accessibility.focusedElement(accessibility.applicationElement(process));
    Seen seen{element != nullptr, accessibility.selectedText(element), {}};
    if (seen.text && !seen.text->isEmpty()) {
        const auto range = accessibility.selectedTextRange(element);
        const auto bounds = range ? accessibility.boundsForRange(element, range) : std::nullopt;
        seen.bounds = bounds.value_or(Rect{});
    }
    return seen;
}

/// A field in which "two" is selected, in both worlds.
class AccessibilityContract : public fakes::AtSpiFixture {
protected:
    using Attributes = std::map<std::string, appleFake::Answer>;

    Seen onLinux(const std::function<void(fakes::FakeObject&)>& change) {
        auto object = focusedText(u"one two"_s, {{4, 7}});
        object.ranges.insert({4, 7}, {10, 20, 30, 40});
        change(object);
        show(object);
        if (object.states.size() < 2) {
            application.answerSearch({});
        }
        start();
        const Seen first = seenBy(*accessibility, QCoreApplication::applicationPid());
        EXPECT_EQ(seenBy(*accessibility, QCoreApplication::applicationPid()), first) << "again";
        return first;
    }

    static Seen onMac(const std::function<void(Attributes& field)>& change) {
        using namespace appleFake;
        auto& world = appleFake::accessibility();
        world = {};
        world.elements[42]["AXFocusedUIElement"] = element(7);
        world.elements[7] = {{"AXSelectedText", string(u"two")},
                             {"AXSelectedTextRange", range({4, 3})},
                             {"AXBoundsForRange", rectangle({{10, 20}, {30, 40}})}};
        change(world.elements[7]);
        platform::AxAccessibility accessibility([&world] { return world.now; });
        const Seen first = seenBy(accessibility, 42);
        EXPECT_EQ(seenBy(accessibility, 42), first) << "again";
        return first;
    }
};

TEST_F(AccessibilityContract, TheSameFieldIsSeenAlike) {
    limits.deadline = std::chrono::milliseconds(400);
    const struct {
        const char* what;
        std::function<void(fakes::FakeObject&)> linux;
        std::function<void(Attributes&)> mac;
        Seen expected;
    } rows[]{
        {"a word is selected", [](auto&) {}, [](auto&) {}, {true, u"two"_s, {10, 20, 30, 40}}},
        {"nothing is selected",
         [](auto& object) { object.selections.clear(); },
         [](auto& field) { field["AXSelectedText"] = appleFake::string(u""); },
         {true, u""_s, {}}},
        {"there are no bounds",
         [](auto& object) { object.ranges.clear(); },
         [](auto& field) { field.erase("AXBoundsForRange"); },
         {true, u"two"_s, {}}},
        {"it holds a password",
         [](auto& object) { object.role = static_cast<unsigned>(platform::Role::PasswordText); },
         [](auto& field) { field["AXSubrole"] = appleFake::string(u"AXSecureTextField"); },
         {true, std::nullopt, {}}},
        {"it holds no text",
         [](auto& object) { object.hasText = false; },
         [](auto& field) { field.clear(); },
         {true, std::nullopt, {}}},
        {"nothing has the focus",
         [](auto& object) { object.states = {platform::State::Editable}; },
         [](auto&) { appleFake::accessibility().elements[42].clear(); },
         {}},
        {"its application hangs",
         [](auto& object) { object.misbehaviours.insert(u"GetText"_s, fakes::silence); },
         [](auto& field) {
             field["AXSelectedText"] = appleFake::after(30, appleFake::string(u"late"));
         },
         {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(onLinux(row.linux), row.expected);
        EXPECT_EQ(onMac(row.mac), row.expected);
    }
}

} // namespace
