#include "platform/SlownessGuard.h"
#include "platform/linux/atspi/AtSpiFixture.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

using namespace std::chrono_literals;
using fakes::Misbehaviour;

namespace {

class PollingTest : public fakes::AtSpiFixture {
protected:
    void showText(const QString& text) {
        if (application == nullptr) {
            application = &desktop.addApplication();
        }
        show(*application, focusedText(text, {{0, static_cast<int>(text.size())}}));
    }
    void send(const QString& interface, const QString& name, const QString& detail = QString()) {
        application->sendEvent(QStringLiteral("/text"), interface, name, detail, 1);
    }
    QMessageBox* question() const {
        for (auto* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == u"trustQuestion" && widget->isVisible()) {
                return qobject_cast<QMessageBox*>(widget);
            }
        }
        return nullptr;
    }

    fakes::FakeApplication* application = nullptr;
};

TEST_F(PollingTest, WhereNothingChangedNobodyIsAsked) {
    showText(QStringLiteral("one"));
    start();
    ASSERT_EQ(look().text, QStringLiteral("one"));
    showText(QStringLiteral("two"));
    for (int poll = 0; poll < 20; ++poll) {
        const auto element = accessibility->applicationElement(QCoreApplication::applicationPid());
        const int before = accessibility->callCount();
        EXPECT_EQ(accessibility->selectedText(accessibility->focusedElement(element)),
                  QStringLiteral("one"));
        EXPECT_EQ(accessibility->callCount(), before);
    }
}

TEST_F(PollingTest, EachEventMakesTheNextLookReadAgain) {
    showText(QStringLiteral("0"));
    start();
    look();
    const std::vector<std::pair<QString, QString>> events{
        {QStringLiteral("Object"), QStringLiteral("TextCaretMoved")},
        {QStringLiteral("Object"), QStringLiteral("TextSelectionChanged")},
        {QStringLiteral("Object"), QStringLiteral("TextChanged")},
        {QStringLiteral("Object"), QStringLiteral("StateChanged")},
        {QStringLiteral("Window"), QStringLiteral("Activate")},
        {QStringLiteral("Window"), QStringLiteral("Deactivate")}};
    for (const auto& [interface, name] : events) {
        showText(name);
        send(interface, name, QStringLiteral("focused"));
        EXPECT_TRUE(eventually([&] { return look().text == name; })) << name.toStdString();
    }
}

TEST_F(PollingTest, WithoutAnyEventItIsReadAgainAfterAWhile) {
    limits.longestTrust = 0ms;
    showText(QStringLiteral("one"));
    start();
    ASSERT_EQ(look().text, QStringLiteral("one"));
    showText(QStringLiteral("two"));
    EXPECT_EQ(look().text, QStringLiteral("two"));
}

TEST_F(PollingTest, EventsWithNonsenseInThem) {
    showText(QStringLiteral("one"));
    start();
    look();
    auto event = QDBusMessage::createSignal(QStringLiteral("/text"),
                                            QStringLiteral("org.a11y.atspi.Event.Object"),
                                            QStringLiteral("StateChanged"));
    event.setArguments({QStringLiteral("focused"), QStringLiteral("yes")});
    application->send(event);
    EXPECT_TRUE(eventually([this] { return look().calls > 3; }));
    EXPECT_EQ(look().text, QStringLiteral("one"));
}

TEST_F(PollingTest, AFocusedObjectThatVanishesIsLookedForAnew) {
    showText(QStringLiteral("one"));
    start();
    look();
    application->set(QStringLiteral("/new"), focusedText(QStringLiteral("new"), {{0, 3}}));
    application->answerSearch({QStringLiteral("/new")});
    application->removeObject(QStringLiteral("/text"));
    send(QStringLiteral("Object"), QStringLiteral("TextCaretMoved"));
    EXPECT_TRUE(eventually([this] { return look().text == QStringLiteral("new"); }));
}

TEST_F(PollingTest, AnApplicationThatDoesNotAnswerIsLeftAlone) {
    limits.deadline = 60ms;
    showText(QStringLiteral("one"));
    auto object = focusedText(QStringLiteral("one"), {{0, 3}});
    object.misbehaviours.insert(QStringLiteral("GetText"), {Misbehaviour::Kind::Silent, {}});
    application->set(QStringLiteral("/text"), object);
    start();

    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(look().focused);
    EXPECT_LT(timer.elapsed(), 1000);
    // Events of its change nothing about that.
    send(QStringLiteral("Object"), QStringLiteral("TextCaretMoved"));
    QCoreApplication::processEvents();
    const auto next = look();
    EXPECT_FALSE(next.focused);
    EXPECT_EQ(next.calls, 0);
}

TEST_F(PollingTest, BoundsThatDoNotComeAreNone) {
    limits.deadline = 500ms;
    auto object = focusedText(QStringLiteral("one"), {{0, 3}});
    object.misbehaviours.insert(QStringLiteral("GetRangeExtents"),
                                {Misbehaviour::Kind::Silent, {}});
    application = &desktop.addApplication();
    show(*application, object);
    start();
    const auto found = look();
    EXPECT_EQ(found.text, QStringLiteral("one"));
    EXPECT_EQ(found.bounds, std::nullopt);
    EXPECT_EQ(look().calls, 0);
}

TEST_F(PollingTest, AnApplicationThatTellsItsTextButNeverItsBoundsIsLeftAloneForLongerEachTime) {
    limits.deadline = 400ms; // Enough for the rest, also on a busy machine.
    limits.longestTrust = 0ms; // Looks again each time it is allowed to.
    auto object = focusedText(QStringLiteral("one"), {{0, 3}});
    object.misbehaviours.insert(QStringLiteral("GetRangeExtents"),
                                {Misbehaviour::Kind::Silent, {}});
    application = &desktop.addApplication();
    show(*application, object);
    start();
    QElapsedTimer pause;
    for (const int least : {0, 1000, 2000}) {
        EXPECT_TRUE(eventually([this] { return look().focused; }));
        if (least > 0) {
            EXPECT_GE(pause.elapsed(), least);
        }
        pause.start();
    }
}

TEST_F(PollingTest, ABusThatStandsStillHoldsNobodyUp) {
    limits.deadline = 500ms;
    showText(QStringLiteral("one"));
    start();
    ASSERT_TRUE(look().focused);
    // Another process is in front, and then again the one that is known already.
    EXPECT_EQ(accessibility->focusedElement(accessibility->applicationElement(1)), nullptr);
    desktop.pauseAccessibilityBus(true);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(look().focused);
    EXPECT_LT(timer.elapsed(), 5000);
    desktop.pauseAccessibilityBus(false);
}

TEST_F(PollingTest, AnApplicationThatQuitsAndItsSuccessor) {
    showText(QStringLiteral("one"));
    start();
    ASSERT_TRUE(look().focused);
    application->quit();
    EXPECT_TRUE(eventually([this] { return !look().focused; }));

    application = &desktop.addApplication();
    showText(QStringLiteral("next"));
    EXPECT_TRUE(eventually([this] { return look().text == QStringLiteral("next"); }));
}

TEST_F(PollingTest, ARestartedBusIsTakenUpAgain) {
    limits.reconnectInterval = 0ms;
    showText(QStringLiteral("one"));
    start();
    ASSERT_TRUE(look().focused);

    desktop.stopAccessibilityBus();
    EXPECT_TRUE(eventually([this] { return !look().focused; }));
    EXPECT_FALSE(look().focused);

    desktop.restartAccessibilityBus();
    application = &desktop.addApplication();
    showText(QStringLiteral("two"));
    EXPECT_TRUE(eventually([this] { return look().text == QStringLiteral("two"); }));
    showText(QStringLiteral("three"));
    send(QStringLiteral("Object"), QStringLiteral("TextChanged"));
    EXPECT_TRUE(eventually([this] { return look().text == QStringLiteral("three"); }));
}

TEST_F(PollingTest, WhatWasNotGivenOutHereIsRefused) {
    showText(QStringLiteral("one"));
    start();
    EXPECT_EQ(accessibility->focusedElement(nullptr), nullptr);
    const auto stranger = accessibility->applicationElement(1);
    EXPECT_EQ(accessibility->focusedElement(stranger), nullptr);
    EXPECT_EQ(accessibility->selectedText(stranger), std::nullopt);
    EXPECT_EQ(accessibility->selectedTextRange(nullptr), nullptr);
    EXPECT_EQ(accessibility->boundsForRange(stranger, nullptr), std::nullopt);
}

TEST_F(PollingTest, ThePermissionIsAskedForOnceAndWrittenOnlyAfterAYes) {
    desktop.setEnabled(false);
    accessibility.emplace(windows, desktop.session(), limits);
    EXPECT_FALSE(accessibility->isProcessTrusted(platform::TrustPrompt::Hidden));
    EXPECT_EQ(question(), nullptr);

    EXPECT_FALSE(accessibility->isProcessTrusted(platform::TrustPrompt::Shown));
    auto* const shown = question();
    ASSERT_NE(shown, nullptr);
    EXPECT_FALSE(accessibility->isProcessTrusted(platform::TrustPrompt::Shown));
    EXPECT_EQ(question(), shown);
    shown->findChild<QPushButton*>(QStringLiteral("notNow"))->click();
    EXPECT_EQ(question(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    accessibility->isProcessTrusted(platform::TrustPrompt::Shown);
    ASSERT_NE(question(), nullptr);
    // The answer to this call comes after that of a message sent by the no.
    EXPECT_FALSE(desktop.isEnabled());
    question()->findChild<QPushButton*>(QStringLiteral("switchOn"))->click();
    EXPECT_TRUE(eventually([this] { return desktop.isEnabled(); }));
    EXPECT_TRUE(accessibility->isProcessTrusted(platform::TrustPrompt::Shown));
    EXPECT_EQ(question(), nullptr);
}

TEST_F(PollingTest, WithoutABusThereIsNoPermissionAndNothingToAsk) {
    desktop.stopAccessibilityBus();
    accessibility.emplace(windows, desktop.session(), limits);
    EXPECT_FALSE(accessibility->isProcessTrusted(platform::TrustPrompt::Shown));
    EXPECT_EQ(question(), nullptr);
    EXPECT_FALSE(look().focused);
}

TEST(SlownessGuardTest, ThePauseGrowsToFiveSeconds) {
    platform::SlownessGuard guard;
    auto now = platform::SlownessGuard::Clock::time_point(100s);
    EXPECT_FALSE(guard.isLeftAlone(now));
    for (const auto pause : {1s, 2s, 4s, 5s, 5s}) {
        guard.ranOut(now);
        EXPECT_TRUE(guard.isLeftAlone(now + pause - 1ms));
        now += pause;
        EXPECT_FALSE(guard.isLeftAlone(now));
    }
}

} // namespace
