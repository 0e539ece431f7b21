#include "platform/linux/atspi/AtSpiFixture.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using fakes::eventually;

namespace {

class PollingTest : public fakes::AtSpiFixture {
protected:
    void showText(const QString& text) {
        show(focusedText(text, {{0, static_cast<int>(text.size())}}));
    }
    void send(const QString& interface, const QString& name, const QVariant& value = 1) {
        application.sendEvent(u"/text"_s, interface, name, u"focused"_s, value);
    }
    QMessageBox* question() const {
        for (auto* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == u"trustQuestion" && widget->isVisible()) {
                return qobject_cast<QMessageBox*>(widget);
            }
        }
        return nullptr;
    }
};

TEST_F(PollingTest, WhereNothingChangedNobodyIsAsked) {
    showText(u"one"_s);
    start();
    ASSERT_EQ(look().text, u"one"_s);
    showText(u"two"_s);
    for (int poll = 0; poll < 20; ++poll) {
        const auto element = accessibility->applicationElement(QCoreApplication::applicationPid());
        const int before = accessibility->callCount();
        EXPECT_EQ(accessibility->selectedText(accessibility->focusedElement(element)), u"one"_s);
        EXPECT_EQ(accessibility->callCount(), before);
    }
}

TEST_F(PollingTest, EachEventMakesTheNextLookReadAgain) {
    showText(u"0"_s);
    start();
    look();
    for (const auto& [interface, name] : {std::pair{u"Object"_s, u"TextCaretMoved"_s},
                                          {u"Object"_s, u"TextSelectionChanged"_s},
                                          {u"Object"_s, u"TextChanged"_s},
                                          {u"Object"_s, u"StateChanged"_s},
                                          {u"Window"_s, u"Activate"_s},
                                          {u"Window"_s, u"Deactivate"_s}}) {
        showText(name);
        send(interface, name);
        EXPECT_TRUE(eventually([&] { return look().text == name; })) << name.toStdString();
    }
}

TEST_F(PollingTest, WithoutAnyEventItIsReadAgainAfterAWhile) {
    limits.longestTrust = 0ms;
    showText(u"one"_s);
    start();
    ASSERT_EQ(look().text, u"one"_s);
    showText(u"two"_s);
    EXPECT_EQ(look().text, u"two"_s);
}

TEST_F(PollingTest, AFocusedObjectThatVanishesIsLookedForAnew) {
    showText(u"one"_s);
    start();
    look();
    application.set(u"/new"_s, focusedText(u"new"_s, {{0, 3}}));
    application.answerSearch({u"/new"_s});
    application.removeObject(u"/text"_s);
    send(u"Object"_s, u"TextCaretMoved"_s);
    EXPECT_TRUE(eventually([this] { return look().text == u"new"_s; }));
}

TEST_F(PollingTest, AnApplicationThatDoesNotAnswerIsLeftAlone) {
    limits.deadline = 60ms;
    auto object = focusedText(u"one"_s, {{0, 3}});
    object.misbehaviours[u"GetText"_s] = fakes::silence;
    show(object);
    start();
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(look().focused);
    EXPECT_LT(timer.elapsed(), 1000);
    // Events of its change nothing about that.
    send(u"Object"_s, u"TextCaretMoved"_s);
    QCoreApplication::processEvents();
    const auto next = look();
    EXPECT_FALSE(next.focused);
    EXPECT_EQ(next.calls, 0);
}

TEST_F(PollingTest, ABusThatStandsStillHoldsNobodyUp) {
    limits.deadline = 500ms;
    showText(u"one"_s);
    start();
    ASSERT_TRUE(look().focused);
    // Another process is in front, and then again the one that is known already.
    EXPECT_EQ(accessibility->focusedElement(accessibility->applicationElement(1)), nullptr);
    desktop.pauseBus(true);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(look().focused);
    EXPECT_LT(timer.elapsed(), 5000);
    desktop.pauseBus(false);
}

TEST_F(PollingTest, ThePermissionIsAskedForOnceAndWrittenOnlyAfterAYes) {
    desktop.isEnabled = false;
    accessibility.emplace(windows, desktop.session(), limits);
    EXPECT_FALSE(accessibility->isProcessTrusted(platform::TrustPrompt::Hidden));
    EXPECT_EQ(question(), nullptr);

    EXPECT_FALSE(accessibility->isProcessTrusted(platform::TrustPrompt::Shown));
    auto* const shown = question();
    ASSERT_NE(shown, nullptr);
    EXPECT_FALSE(accessibility->isProcessTrusted(platform::TrustPrompt::Shown));
    EXPECT_EQ(question(), shown);
    shown->findChild<QPushButton*>(u"notNow"_s)->click();
    EXPECT_EQ(question(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    accessibility->isProcessTrusted(platform::TrustPrompt::Shown);
    ASSERT_NE(question(), nullptr);
    // The answer to this call comes after that of a message sent by the no.
    EXPECT_FALSE(desktop.isEnabled);
    question()->findChild<QPushButton*>(u"switchOn"_s)->click();
    EXPECT_TRUE(eventually([this] { return desktop.isEnabled.load(); }));
    EXPECT_TRUE(accessibility->isProcessTrusted(platform::TrustPrompt::Shown));
    EXPECT_EQ(question(), nullptr);
}

} // namespace
