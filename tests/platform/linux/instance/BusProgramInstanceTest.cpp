#include "platform/linux/freedesktop/BusProgramInstance.h"

#include "PrivateBus.h"
#include "Responder.h"
#include "fakes/Eventually.h"

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

    core::Registration record(BusProgramInstance& instance) {
        return instance.setRequestHandler(
            [this](const InstanceRequest& request) { requests.push_back(request); });
    }

    static constexpr std::chrono::milliseconds longEnough{4000};
    const ActivationToken token{u"launcher-1_TIME77"_s, u"wayland-1"_s};
    fakes::PrivateBus bus;
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

