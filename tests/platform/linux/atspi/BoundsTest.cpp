#include "platform/linux/atspi/AtSpiFixture.h"

using namespace Qt::StringLiterals;
using fakes::FakeObject;
using platform::Extents;
using platform::PixelRect;
using platform::Rect;

namespace {

class BoundsTest : public fakes::AtSpiFixture {
protected:
    std::optional<Rect> boundsOf(const FakeObject& object) {
        show(object);
        start();
        return look().bounds;
    }
    std::optional<Rect> boundsFor(const Extents& extents) {
        auto object = focusedText(u"text"_s, {{0, 4}});
        object.ranges.insert({0, 4}, extents);
        return boundsOf(object);
    }
};

TEST_F(BoundsTest, WhatIsSomewhereAndWhatIsNowhere) {
    EXPECT_EQ(boundsFor({10, 20, 30, 40}), (Rect{10, 20, 30, 40}));
    // As thin as a caret.
    EXPECT_EQ(boundsFor({10, 20, 0, 40}), (Rect{10, 20, 0, 40}));
    EXPECT_EQ(boundsFor({0, 0, 0, 0}), std::nullopt);
    EXPECT_EQ(boundsFor({-1, -1, 0, 0}), std::nullopt);
    EXPECT_EQ(boundsFor({10, 20, -30, 40}), std::nullopt);
    EXPECT_EQ(boundsFor({INT_MIN, INT_MIN, 1, 1}), std::nullopt);
    EXPECT_EQ(boundsFor({INT_MAX, 5, INT_MAX, INT_MAX}), std::nullopt);
}

TEST_F(BoundsTest, OnlyWhatCanBeSeenCounts) {
    windows.clientArea = PixelRect{100, 100, 400, 300};
    EXPECT_EQ(boundsFor({50, 50, 1000, 100}), (Rect{100, 100, 400, 50}));
    // Scrolled out of its window.
    EXPECT_EQ(boundsFor({120, 50, 100, 20}), std::nullopt);

    windows.clientArea = std::nullopt;
    windows.geometry = platform::PixelGeometry({{{0, 0, 1000, 800}, {0, 0, 1000, 800}, 1, true}});
    EXPECT_EQ(boundsFor({900, 700, 300, 300}), (Rect{900, 700, 100, 100}));
    EXPECT_EQ(boundsFor({1100, 700, 300, 300}), std::nullopt);
}

TEST_F(BoundsTest, SeveralPiecesAreUnited) {
    auto object = focusedText(u"one two three"_s, {{0, 3}, {4, 7}, {8, 13}});
    object.ranges.insert({0, 3}, {10, 20, 30, 10});
    object.ranges.insert({8, 13}, {5, 40, 10, 10});
    EXPECT_EQ(boundsOf(object), (Rect{5, 20, 35, 30}));
}

TEST_F(BoundsTest, NoAnswerOrAWrongOneIsNone) {
    auto object = focusedText(u"text"_s, {{0, 4}});
    for (const auto& wrong : {fakes::Misbehaviour(fakes::refusal),
                              fakes::answering({QVariant::fromValue(Extents{1, 2, 3, 4})})}) {
        object.misbehaviours[u"GetRangeExtents"_s] = wrong;
        EXPECT_EQ(boundsOf(object), std::nullopt);
    }
}

TEST_F(BoundsTest, OfALongTextPiecesAreAskedFor) {
    auto object = focusedText(QString(100'000, u'a'), {{0, 100'000}});
    object.ranges.insert({0, 48}, {10, -5000, 400, 20});
    object.ranges.insert({99'952, 100'000}, {10, 90'000, 200, 20});
    windows.clientArea = PixelRect{0, 50, 500, 300};
    // Begins above the window and ends below it: it fills the window.
    EXPECT_EQ(boundsOf(object), (Rect{10, 50, 400, 300}));
}

TEST_F(BoundsTest, APaneThatForgetsTheMenuBarIsPutRight) {
    windows.clientArea = PixelRect{30, 19, 1280, 781};
    auto object = focusedText(u"text"_s, {{0, 4}});
    object.parent = u"/pane"_s;
    object.ranges.insert({0, 4}, {282, 217, 303, 19});
    show(object);
    start();
    const auto boundsInPane = [&](const Extents& told) {
        application.set(u"/pane"_s,
                        {.role = static_cast<unsigned>(platform::Role::RootPane), .extents = told});
        return look().bounds;
    };
    EXPECT_EQ(boundsInPane({20, 19, 1280, 756}), (Rect{292, 242, 303, 19}));
    // It may know better at any time.
    EXPECT_EQ(boundsInPane({30, 44, 1280, 756}), (Rect{282, 217, 303, 19}));
    // A pane of another size tells nothing.
    EXPECT_EQ(boundsInPane({0, 19, 600, 756}), (Rect{282, 217, 303, 19}));
}

TEST_F(BoundsTest, UnitsOfSeveralPixelsAreKnownByTheSizeOfTheWindow) {
    auto object = focusedText(u"text"_s, {{0, 4}});
    object.ranges.insert({0, 4}, {347, 237, 45, 18});
    show(object);
    application.set(u"root"_s, {.role = static_cast<unsigned>(platform::Role::Application),
                                .children = {u"/window"_s}});
    start();
    const auto boundsInWindow = [&](const Extents& told) {
        application.set(u"/window"_s, {.states = {platform::State::Active},
                                       .hasText = false,
                                       .parent = platform::ObjectReference::root({}).path,
                                       .children = {u"/text"_s},
                                       .extents = told});
        return look().bounds;
    };
    windows.clientArea = PixelRect{401, 420, 1000, 600};
    EXPECT_EQ(boundsInWindow({200, 210, 500, 300}), (Rect{694, 474, 90, 36}));
    // Without the invisible edges that belong to the window.
    EXPECT_EQ(boundsInWindow({200, 210, 474, 274}), (Rect{694, 474, 90, 36}));

    // Of its own size, or of one that means nothing.
    windows.clientArea = PixelRect{0, 0, 1000, 600};
    EXPECT_EQ(boundsInWindow({0, 0, 1000, 600}), (Rect{347, 237, 45, 18}));
    EXPECT_EQ(boundsInWindow({0, 0, 500, 600}), (Rect{347, 237, 45, 18}));
    EXPECT_EQ(boundsInWindow({0, 0, 0, 0}), (Rect{347, 237, 45, 18}));
}

TEST_F(BoundsTest, WindowCoordinatesAreTakenWhereThereAreNoOthers) {
    // One line, of whose range only the place and the height are told right.
    auto object = focusedText(u"line"_s, {{0, 4}});
    object.ranges.insert({0, 4}, {8, 142, 4, 16});
    object.characters = {{0, {8, 142, 4, 16}}, {3, {122, 142, 7, 16}}};
    object.knowsWindowOnly = true;
    struct Row {
        const char* what;
        PixelRect surface;
        PixelRect visible;
        Extents window;
        Rect expected;
    };
    for (const auto& row : std::initializer_list<Row>{{"a bare window",
                                                       {200, 150, 700, 420},
                                                       {200, 150, 700, 420},
                                                       {0, 0, 700, 420},
                                                       {208, 292, 121, 16}},
                                                      {"a shadow",
                                                       {200, 150, 700, 420},
                                                       {261, 205, 578, 298},
                                                       {0, 0, 578, 298},
                                                       {269, 347, 121, 16}},
                                                      {"a solid border",
                                                       {200, 150, 700, 420},
                                                       {200, 150, 700, 420},
                                                       {-5, -5, 700, 420},
                                                       {218, 302, 121, 16}},
                                                      {"two pixels to a unit",
                                                       {200, 150, 1022, 658},
                                                       {322, 260, 778, 414},
                                                       {0, 0, 389, 207},
                                                       {338, 544, 242, 32}}}) {
        SCOPED_TRACE(row.what);
        windows.clientArea = row.surface;
        windows.visible = row.visible;
        show(object);
        application.set(u"/window"_s, {.states = {platform::State::Active},
                                       .hasText = false,
                                       .parent = platform::ObjectReference::root({}).path,
                                       .children = {u"/text"_s},
                                       .extents = row.window});
        application.set(u"root"_s, {.role = static_cast<unsigned>(platform::Role::Application),
                                    .children = {u"/window"_s}});
        start();
        EXPECT_EQ(look().bounds, row.expected);
    }
}

} // namespace
