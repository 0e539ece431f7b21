#include "platform/linux/atspi/AtSpiFixture.h"

using namespace Qt::StringLiterals;
using platform::State;

namespace {

class FocusTest : public fakes::AtSpiFixture {
protected:
    FocusTest() {
        application.set(u"root"_s, {.children = {u"/other"_s, u"/window"_s}});
        application.set(u"/other"_s, {.children = {u"/elsewhere"_s}});
        application.set(u"/elsewhere"_s, focusedText(u"elsewhere"_s, {{0, 9}}));
        putIntoWindow({u"/panel"_s});
        application.set(u"/panel"_s,
                        {.states = {State::Focused}, .hasText = false, .children = {u"/text"_s}});
        application.set(u"/text"_s, focusedText(u"text"_s, {{0, 4}}));
        start();
    }

    void putIntoWindow(const QStringList& children, const QString& question = {}) {
        application.set(u"/window"_s,
                        {.states = {State::Active},
                         .hasText = false,
                         .children = children,
                         .misbehaviours = {{question, fakes::answering({u"what?"_s})}}});
    }
};

TEST_F(FocusTest, OfSeveralHitsTheEditableTextIsMeant) {
    application.set(u"/document"_s, {.states = {State::Focused}});
    application.answerSearch({u"/panel"_s, u"/document"_s, u"/text"_s});
    EXPECT_EQ(look().text, u"text"_s);
}

TEST_F(FocusTest, WithoutSearchTheActiveWindowIsWalked) {
    EXPECT_EQ(look().text, u"text"_s);
}

TEST_F(FocusTest, WithoutSearchTheFocusEventShowsTheWayWhereAWalkIsTooLong) {
    QStringList many;
    for (int index = 0; index < 150; ++index) {
        many.push_back(u"/row%1"_s.arg(index));
    }
    for (const auto& path : many) {
        application.set(path, {.children = many});
    }
    putIntoWindow(many);
    EXPECT_FALSE(look().focused);

    // The walk is not taken a second time; what the event names is believed only after a look.
    application.sendEvent(u"/row1"_s, u"Object"_s, u"StateChanged"_s, u"focused"_s, 1);
    fakes::Look again;
    ASSERT_TRUE(fakes::eventually([&] { return (again = look()).calls > 0; }));
    EXPECT_FALSE(again.focused);
    EXPECT_LT(again.calls, 10);

    application.sendEvent(u"/text"_s, u"Object"_s, u"StateChanged"_s, u"focused"_s, 1);
    EXPECT_TRUE(fakes::eventually([this] { return look().text == u"text"_s; }));
}

TEST_F(FocusTest, TablesAreNotEntered) {
    application.set(u"/table"_s, {.role = static_cast<unsigned>(platform::Role::Table),
                                  .children = {u"/text"_s}});
    putIntoWindow({u"/table"_s});
    EXPECT_FALSE(look().focused);
}

TEST_F(FocusTest, WrongAnswersOnTheWay) {
    for (const auto& question :
         {u"GetChildren"_s, u"GetMatches"_s, u"GetState"_s, u"ChildCount"_s}) {
        putIntoWindow({u"/panel"_s}, question);
        start();
        // Without a search the window is walked; without the rest nothing is found.
        EXPECT_EQ(look().focused, question == u"GetMatches");
    }
}

} // namespace
