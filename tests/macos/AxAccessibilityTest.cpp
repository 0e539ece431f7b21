#include "platform/macos/AxAccessibility.h"

#include "macos/fakes/c/AccessibilityFake.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using namespace appleFake;
using platform::Rect;
using platform::TrustPrompt;

namespace {

constexpr int application = 42;
constexpr int field = 7;

/// What one poll reads.
struct Look {
    bool focus = false;
    std::optional<QString> text;
    bool range = false;
    std::optional<Rect> bounds;

    bool operator==(const Look&) const = default;
};

class AxAccessibilityTest : public testing::Test {
protected:
    AxAccessibilityTest() {
        world = {};
        world.elements[application]["AXFocusedUIElement"] = element(field);
        world.elements[field] = {
            {"AXSubrole", failure(kAXErrorNoValue)},
            {"AXSelectedText", string(u"word")},
            {"AXSelectedTextRange", range({4, 3})},
            {"AXBoundsForRange", rectangle({{10, 20}, {30, 40}})},
        };
    }

    ~AxAccessibilityTest() override {
        EXPECT_EQ(liveObjects(), 0) << "an object was not released";
        for (const Question& question : world.questions) {
            EXPECT_GT(question.limit, 0);
            EXPECT_LE(question.limit, 0.2501) << question.attribute;
        }
    }

    Look look(platform::ProcessIdentifier process = application) {
        Look look;
        const auto focused =
            accessibility.focusedElement(accessibility.applicationElement(process));
        look.focus = focused != nullptr;
        look.text = accessibility.selectedText(focused);
        const auto selected = accessibility.selectedTextRange(focused);
        look.range = selected != nullptr;
        look.bounds = accessibility.boundsForRange(focused, selected);
        return look;
    }

    std::vector<std::string> asked() const {
        std::vector<std::string> lines;
        for (const Question& question : world.questions) {
            lines.push_back(std::to_string(question.element) + " " + question.attribute);
        }
        return lines;
    }

    void pass(double seconds) {
        world.now += std::chrono::duration_cast<Accessibility::Clock::duration>(
            std::chrono::duration<double>(seconds));
    }

    Accessibility& world = appleFake::accessibility();
    platform::AxAccessibility accessibility{[this] { return world.now; }};
};

const Look unreadable{};
const Look noText{true, std::nullopt, false, std::nullopt};
const Look whole{true, QStringLiteral("word"), true, Rect{10, 20, 30, 40}};

TEST_F(AxAccessibilityTest, OnlyTheQuestionAtTheStartLetsTheSystemAskTheUser) {
    EXPECT_TRUE(accessibility.isProcessTrusted(TrustPrompt::Shown));
    world.trusted = false;
    EXPECT_FALSE(accessibility.isProcessTrusted(TrustPrompt::Shown));
    EXPECT_FALSE(accessibility.isProcessTrusted(TrustPrompt::Hidden));
    EXPECT_EQ(world.prompts, (std::vector{true, true, false}));
}

TEST_F(AxAccessibilityTest, ReadsTheFocusTheTextItsRangeAndTheRangesBounds) {
    EXPECT_EQ(look(), whole);
    EXPECT_EQ(asked(),
              (std::vector<std::string>{"42 AXFocusedUIElement", "7 AXSubrole", "7 AXSelectedText",
                                        "7 AXSelectedTextRange", "7 AXBoundsForRange"}));
    ASSERT_TRUE(world.questions.back().range);
    EXPECT_EQ(world.questions.back().range->location, 4);
    EXPECT_EQ(world.questions.back().range->length, 3);
}

TEST_F(AxAccessibilityTest, WhatFailsIsMissingOrIsOfAWrongTypeYieldsNothing) {
    struct Row {
        const char* attribute;
        int element;
        Answer answer;
        Look expected;
    };
    const Look atPointer{true, whole.text, false, std::nullopt};
    const Look noBounds{true, whole.text, true, std::nullopt};
    const Look zeroBounds{true, whole.text, true, Rect{}};
    const Answer nothing{kAXErrorSuccess, {}};
    const std::vector<Row> rows{
        {"AXFocusedUIElement", application, failure(kAXErrorNoValue), unreadable},
        {"AXFocusedUIElement", application, failure(kAXErrorCannotComplete), unreadable},
        {"AXFocusedUIElement", application, nothing, unreadable},
        {"AXFocusedUIElement", application, string(u"field"), unreadable},
        {"AXSubrole", field, failure(kAXErrorAttributeUnsupported), whole},
        {"AXSubrole", field, string(u"AXSearchField"), whole},
        {"AXSubrole", field, element(9), whole},
        {"AXSubrole", field, nothing, whole},
        {"AXSubrole", field, failure(kAXErrorCannotComplete), noText},
        {"AXSubrole", field, failure(kAXErrorInvalidUIElement), noText},
        {"AXSelectedText", field, failure(kAXErrorAttributeUnsupported), noText},
        {"AXSelectedText", field, nothing, noText},
        {"AXSelectedText", field, range({0, 1}), noText},
        {"AXSelectedTextRange", field, failure(kAXErrorNoValue), atPointer},
        {"AXSelectedTextRange", field, nothing, atPointer},
        {"AXBoundsForRange", field, failure(kAXErrorParameterizedAttributeUnsupported), noBounds},
        {"AXBoundsForRange", field, nothing, noBounds},
        {"AXBoundsForRange", field, string(u"{10, 20}"), zeroBounds},
        {"AXBoundsForRange", field, range({10, 20}), zeroBounds},
    };
    const auto elements = world.elements;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        world.elements = elements;
        world.elements[rows[i].element][rows[i].attribute] = rows[i].answer;
        EXPECT_EQ(look(), rows[i].expected) << "row " << i << ", " << rows[i].attribute;
    }
    for (const auto process : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1} << 40}) {
        EXPECT_EQ(look(process), unreadable);
    }
}

TEST_F(AxAccessibilityTest, APasswordFieldIsNotEvenAskedForItsText) {
    world.elements[field]["AXSubrole"] = string(u"AXSecureTextField");
    EXPECT_EQ(look(), noText);
    EXPECT_EQ(asked(), (std::vector<std::string>{"42 AXFocusedUIElement", "7 AXSubrole"}));
}

TEST_F(AxAccessibilityTest, AllQuestionsOfAPollShareAQuarterOfASecond) {
    for (auto& [number, attributes] : world.elements) {
        for (auto& [attribute, answer] : attributes) {
            answer.seconds = 0.04;
        }
    }
    EXPECT_EQ(look(), whole);
    std::vector<double> limits;
    for (const Question& question : world.questions) {
        limits.push_back(question.limit);
    }
    EXPECT_THAT(limits, testing::Pointwise(testing::DoubleNear(1e-4),
                                           std::vector{0.25, 0.21, 0.17, 0.13, 0.09}));
}

TEST_F(AxAccessibilityTest, WhoeverIsTooSlowCountsAsUnreadableWhicheverQuestionItWas) {
    const auto elements = world.elements;
    for (const auto& [number, attribute] : {std::pair{application, "AXFocusedUIElement"},
                                            {field, "AXSubrole"},
                                            {field, "AXSelectedText"}}) {
        world.elements = elements;
        world.elements[number][attribute] = after(30, string(u"late"));
        world.spent = 0;
        EXPECT_EQ(look(), unreadable) << attribute;
        EXPECT_NEAR(world.spent, 0.25, 0.001) << attribute;
        pass(10);
        world.elements = elements;
        EXPECT_EQ(look(), whole) << "recovers";
    }

    world.elements[field]["AXSelectedTextRange"] = after(30, range({0, 1}));
    world.spent = 0;
    EXPECT_EQ(look(), (Look{true, whole.text, false, std::nullopt}));
    EXPECT_NEAR(world.spent, 0.25, 0.001);
    EXPECT_EQ(look(), unreadable) << "it is left alone";
}

TEST_F(AxAccessibilityTest, WhoeverIsTooSlowIsLeftAloneForAGrowingWhile) {
    world.elements[application]["AXFocusedUIElement"] = after(30, element(field));
    for (const double pause : {1.0, 2.0, 4.0, 5.0, 5.0}) {
        EXPECT_EQ(look(), unreadable);
        world.questions.clear();
        pass(pause - 0.01);
        EXPECT_EQ(look(), unreadable);
        EXPECT_TRUE(world.questions.empty()) << pause;
        EXPECT_EQ(look(43), unreadable);
        EXPECT_FALSE(world.questions.empty()) << "others are asked";
        pass(0.01);
    }
    world.elements[application]["AXFocusedUIElement"] = element(field);
    EXPECT_EQ(look(), whole);
}

} // namespace
