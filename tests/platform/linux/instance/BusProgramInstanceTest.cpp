#include "platform/linux/freedesktop/BusProgramInstance.h"

#include "PrivateBus.h"
#include "Responder.h"
#include "fakes/Eventually.h"

#include <QDBusPendingReply>
#include <QTimer>
#include <gtest/gtest.h>

#include <future>
#include <vector>

using namespace Qt::StringLiterals;
using fakes::eventually;
using platform::ActivationToken;
using platform::BusProgramInstance;
using platform::InstanceRequest;
using Claim = platform::ProgramInstance::Claim;
using Kind = platform::InstanceRequest::Kind;

namespace {

const QString programName = u"com.corvane.Quillet"_s;

class BusProgramInstanceTest : public testing::Test {
protected:
    /// A further start, which may wait for this thread.
    std::future<Claim> start(Kind asked, std::chrono::milliseconds limit = longEnough) {
        return std::async(std::launch::async, [this, connection = bus.connect(), asked, limit] {
            return BusProgramInstance(connection, token, limit).claim(asked);
        });
    }

    static Claim outcome(std::future<Claim> start) {
        EXPECT_TRUE(eventually(
            [&] { return start.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return start.get();
    }

    /// Calls the running program like the desktop; the name of the error, empty for none.
    QString call(const QString& method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(programName, u"/com/corvane/Quillet"_s,
                                                      u"org.freedesktop.Application"_s, method);
        message.setArguments(arguments);
        QDBusPendingReply<> reply = caller.asyncCall(message, 5000);
        EXPECT_TRUE(eventually([&] { return reply.isFinished(); }));
        return reply.error().name();
    }

    core::Registration record(BusProgramInstance& instance) {
        return instance.setRequestHandler(
            [this](const InstanceRequest& request) { requests.push_back(request); });
    }

    static constexpr std::chrono::milliseconds longEnough{4000};
    const ActivationToken token{u"launcher-1_TIME77"_s, u"wayland-1"_s};
    fakes::PrivateBus bus;
    QDBusConnection caller = bus.connect();
    std::vector<InstanceRequest> requests;
};

} // namespace

TEST_F(BusProgramInstanceTest, WhatEachStartAsksForReachesTheProgramOnceItListens) {
    BusProgramInstance first(bus.connect(), token);
    ASSERT_EQ(first.claim(Kind::Settings), Claim::First);
    EXPECT_EQ(outcome(start(Kind::Quit)), Claim::HandedOver);
    const auto handler = record(first);
    EXPECT_TRUE(requests.empty()) << "told before the caller of setRequestHandler was ready";
    ASSERT_TRUE(eventually([&] { return requests.size() == 2; }));
    EXPECT_EQ(outcome(start(Kind::Activate)), Claim::HandedOver);
    ASSERT_TRUE(eventually([&] { return requests.size() == 3; }));
    EXPECT_EQ(requests,
              (std::vector<InstanceRequest>{
                  {Kind::Settings, token}, {Kind::Quit, token}, {Kind::Activate, token}}));
}

TEST_F(BusProgramInstanceTest, AProgramThatHangsIsGivenUpInTime) {
    BusProgramInstance hanging(bus.connect(), {});
    ASSERT_EQ(hanging.claim(Kind::Activate), Claim::First);
    testing::internal::CaptureStdout();
    // Nobody hands out events to this thread meanwhile.
    auto second = start(Kind::Activate, std::chrono::milliseconds(200));
    EXPECT_EQ(second.wait_for(std::chrono::seconds(3)), std::future_status::ready);
    EXPECT_EQ(second.get(), Claim::Unanswered);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Quillet: the program runs already, but does not answer: "
              "org.freedesktop.DBus.Error.NoReply\n");
}

TEST_F(BusProgramInstanceTest, TakesOverFromAProgramThatEndsWithoutAnAnswer) {
    auto owner = bus.connect();
    std::optional<fakes::Responder> ending;
    ending.emplace(owner, [&](const QDBusMessage&) {
        QTimer::singleShot(0, qApp, [&] {
            ending.reset();
            bus.disconnect(owner);
            // Whoever holds a connection keeps it open.
            owner = QDBusConnection(u"no such connection"_s);
        });
        return QDBusMessage();
    });
    ASSERT_TRUE(owner.registerService(programName));
    EXPECT_EQ(outcome(start(Kind::Activate)), Claim::First);
}

TEST_F(BusProgramInstanceTest, ActionsArriveInTheirOrderAndWaitWhileNobodyHandlesThem) {
    BusProgramInstance first(bus.connect(), {});
    ASSERT_EQ(first.claim(Kind::Activate), Claim::First);
    const QVariantMap data{{u"desktop-startup-id"_s, u"id"_s}, {u"something else"_s, 7}};
    const auto action = [&](const QString& name) {
        return call(u"ActivateAction"_s, {name, QVariantList{}, data});
    };
    auto handler = record(first);
    EXPECT_EQ(action(u"settings"_s), QString());
    EXPECT_EQ(action(u"feedback"_s), QString());
    EXPECT_EQ(action(u"delete everything"_s), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    ASSERT_TRUE(eventually([&] { return requests.size() == 2; }));

    handler.reset();
    EXPECT_EQ(call(u"Open"_s, {QStringList{u"file:///a"_s}, data}), QString());
    EXPECT_EQ(action(u"quit"_s), QString());
    EXPECT_EQ(requests.size(), 2U);
    handler = record(first);
    ASSERT_TRUE(eventually([&] { return requests.size() == 4; }));
    const ActivationToken id{u"id"_s, {}};
    EXPECT_EQ(
        requests,
        (std::vector<InstanceRequest>{
            {Kind::Settings, id}, {Kind::Feedback, id}, {Kind::Activate, id}, {Kind::Quit, id}}));
}
