#include "platform/linux/atspi/AtSpiFixture.h"

using fakes::FakeObject;
using platform::State;

namespace {

class FocusTest : public fakes::AtSpiFixture {
protected:
    FocusTest()
        : application(desktop.addApplication()) {
        FakeObject root;
        root.children = {QStringLiteral("/other"), QStringLiteral("/window")};
        application.set(QStringLiteral("root"), root);
        FakeObject other;
        other.children = {QStringLiteral("/elsewhere")};
        application.set(QStringLiteral("/other"), other);
        application.set(QStringLiteral("/elsewhere"),
                        focusedText(QStringLiteral("elsewhere"), {{0, 9}}));
        putIntoWindow({QStringLiteral("/panel")});
        FakeObject panel;
        panel.hasText = false;
        panel.states = {State::Focused};
        panel.children = {QStringLiteral("/text")};
        application.set(QStringLiteral("/panel"), panel);
        application.set(QStringLiteral("/text"), focusedText(QStringLiteral("text"), {{0, 4}}));
        start();
    }

    void putIntoWindow(const QList<QString>& children) {
        FakeObject window;
        window.hasText = false;
        window.states = {State::Active};
        window.children = children;
        application.set(QStringLiteral("/window"), window);
    }

    fakes::FakeApplication& application;
};

TEST_F(FocusTest, OfSeveralHitsTheEditableTextIsMeant) {
    FakeObject document;
    document.states = {State::Focused};
    application.set(QStringLiteral("/document"), document);
    application.answerSearch(
        {QStringLiteral("/panel"), QStringLiteral("/document"), QStringLiteral("/text")});
    EXPECT_EQ(look().text, QStringLiteral("text"));
}

TEST_F(FocusTest, WithoutSearchTheActiveWindowIsWalked) {
    EXPECT_EQ(look().text, QStringLiteral("text"));
}

TEST_F(FocusTest, WithoutSearchTheFocusEventShowsTheWayWhereAWalkIsTooLong) {
    QList<QString> many;
    for (int index = 0; index < 150; ++index) {
        many.push_back(QStringLiteral("/row%1").arg(index));
    }
    FakeObject row;
    row.children = many;
    for (const auto& path : many) {
        application.set(path, row);
    }
    putIntoWindow(many);
    EXPECT_FALSE(look().focused);

    // The walk is not taken a second time; what the event names is believed only after a look.
    application.sendEvent(QStringLiteral("/row1"), QStringLiteral("Object"),
                          QStringLiteral("StateChanged"), QStringLiteral("focused"), 1);
    fakes::Look again;
    ASSERT_TRUE(eventually([&] { return (again = look()).calls > 0; }));
    EXPECT_FALSE(again.focused);
    EXPECT_LT(again.calls, 10);

    application.sendEvent(QStringLiteral("/text"), QStringLiteral("Object"),
                          QStringLiteral("StateChanged"), QStringLiteral("focused"), 1);
    EXPECT_TRUE(eventually([this] { return look().text == QStringLiteral("text"); }));
}

TEST_F(FocusTest, TablesAreNotEntered) {
    FakeObject table;
    table.role = static_cast<unsigned>(platform::Role::Table);
    table.children = {QStringLiteral("/text")};
    application.set(QStringLiteral("/table"), table);
    putIntoWindow({QStringLiteral("/table")});
    EXPECT_FALSE(look().focused);
}

TEST_F(FocusTest, WrongAnswersOnTheWay) {
    const fakes::Misbehaviour wrong{fakes::Misbehaviour::Kind::Answer, {QStringLiteral("what?")}};
    for (const auto* question : {u"GetChildren", u"GetMatches", u"GetState", u"ChildCount"}) {
        FakeObject window;
        window.states = {State::Active};
        window.children = {QStringLiteral("/panel")};
        window.misbehaviours.insert(QString::fromUtf16(question), wrong);
        application.set(QStringLiteral("/window"), window);
        accessibility.emplace(windows, desktop.session(), limits);
        ASSERT_TRUE(accessibility->isProcessTrusted(platform::TrustPrompt::Hidden));
        // Without a search the window is walked; without the rest nothing is found.
        EXPECT_EQ(look().focused, question == std::u16string_view(u"GetMatches"));
    }
}

} // namespace
