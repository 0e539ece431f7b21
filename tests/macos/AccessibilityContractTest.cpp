#include "macos/fakes/c/AccessibilityFake.h"
#include "platform/linux/atspi/AtSpiFixture.h"
#include "platform/macos/AxAccessibility.h"

#include <memory>

/// What the program above sees of the same field must not depend on the system below.
namespace {

using platform::Rect;

enum class Situation {
    AWordIsSelected,
    NothingIsSelected,
    ThereAreNoBounds,
    TheFieldHoldsAPassword,
    TheFieldHoldsNoText,
    NothingHasTheFocus,
    TheApplicationHangs,
};

class AtSpiDesktop : public fakes::AtSpiFixture {
public:
    std::unique_ptr<platform::Accessibility> show(Situation situation) {
        auto object = focusedText(QStringLiteral("one two"), {{4, 7}});
        object.ranges.insert({4, 7}, {10, 20, 30, 40});
        switch (situation) {
        case Situation::AWordIsSelected:
            break;
        case Situation::NothingIsSelected:
            object.selections.clear();
            break;
        case Situation::ThereAreNoBounds:
            object.ranges.clear();
            break;
        case Situation::TheFieldHoldsAPassword:
            object.role = static_cast<unsigned>(platform::Role::PasswordText);
            break;
        case Situation::TheFieldHoldsNoText:
            object.hasText = false;
            break;
        case Situation::NothingHasTheFocus:
            object.states = {platform::State::Editable};
            break;
        case Situation::TheApplicationHangs:
            object.misbehaviours.insert(QStringLiteral("GetText"), fakes::silence);
            limits.deadline = std::chrono::milliseconds(60);
            break;
        }
        AtSpiFixture::show(object);
        if (situation == Situation::NothingHasTheFocus) {
            application.answerSearch({});
        }
        auto made =
            std::make_unique<platform::AtSpiAccessibility>(windows, desktop.session(), limits);
        EXPECT_TRUE(made->isProcessTrusted(platform::TrustPrompt::Hidden));
        return made;
    }

    static platform::ProcessIdentifier process() { return QCoreApplication::applicationPid(); }

private:
    void TestBody() override {}
};

class AxDesktop {
public:
    static std::unique_ptr<platform::Accessibility> show(Situation situation) {
        using namespace appleFake;
        auto& world = accessibility();
        world = {};
        auto& application = world.elements[42];
        auto& field = world.elements[7];
        application["AXFocusedUIElement"] = element(7);
        field["AXSelectedText"] = string(u"two");
        field["AXSelectedTextRange"] = range({4, 3});
        field["AXBoundsForRange"] = rectangle({{10, 20}, {30, 40}});
        switch (situation) {
        case Situation::AWordIsSelected:
            break;
        case Situation::NothingIsSelected:
            field["AXSelectedText"] = string(u"");
            break;
        case Situation::ThereAreNoBounds:
            field.erase("AXBoundsForRange");
            break;
        case Situation::TheFieldHoldsAPassword:
            field["AXSubrole"] = string(u"AXSecureTextField");
            break;
        case Situation::TheFieldHoldsNoText:
            field.clear();
            break;
        case Situation::NothingHasTheFocus:
            application.clear();
            break;
        case Situation::TheApplicationHangs:
            field["AXSelectedText"] = after(30, string(u"late"));
            break;
        }
        return std::make_unique<platform::AxAccessibility>([&world] { return world.now; });
    }

    static platform::ProcessIdentifier process() { return 42; }
};

/// What the monitor makes of one poll: it looks for bounds when there is a text, and takes zero
/// bounds and none for the same.
struct Seen {
    bool focus = false;
    std::optional<QString> text;
    Rect bounds;

    bool operator==(const Seen&) const = default;
};

Seen look(platform::Accessibility& accessibility, platform::ProcessIdentifier process) {
    const auto element = accessibility.focusedElement(accessibility.applicationElement(process));
    Seen seen{element != nullptr, accessibility.selectedText(element), {}};
    if (seen.text && !seen.text->isEmpty()) {
        const auto range = accessibility.selectedTextRange(element);
        const auto bounds = range ? accessibility.boundsForRange(element, range) : std::nullopt;
        seen.bounds = bounds.value_or(Rect{});
    }
    return seen;
}

} // namespace

template <typename Desktop>
class AccessibilityContract : public testing::Test {};

using Desktops = testing::Types<AtSpiDesktop, AxDesktop>;
TYPED_TEST_SUITE(AccessibilityContract, Desktops);

TYPED_TEST(AccessibilityContract, TheSameFieldIsSeenAlike) {
    const std::vector<std::pair<Situation, Seen>> rows{
        {Situation::AWordIsSelected, {true, QStringLiteral("two"), {10, 20, 30, 40}}},
        {Situation::NothingIsSelected, {true, QStringLiteral(""), {}}},
        {Situation::ThereAreNoBounds, {true, QStringLiteral("two"), {}}},
        {Situation::TheFieldHoldsAPassword, {true, std::nullopt, {}}},
        {Situation::TheFieldHoldsNoText, {true, std::nullopt, {}}},
        {Situation::NothingHasTheFocus, {}},
        {Situation::TheApplicationHangs, {}},
    };
    for (const auto& [situation, expected] : rows) {
        TypeParam desktop;
        const auto accessibility = desktop.show(situation);
        EXPECT_EQ(look(*accessibility, desktop.process()), expected)
            << "situation " << static_cast<int>(situation);
        EXPECT_EQ(look(*accessibility, desktop.process()), expected) << "the second poll";
    }
}
