#include "platform/linux/freedesktop/BusProgramInstance.h"

#include "PrivateBus.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QProcess>
#include <gtest/gtest.h>

#include <array>
#include <future>
#include <vector>

using platform::ActivationToken;
using platform::BusProgramInstance;
using platform::InstanceRequest;
using Claim = platform::ProgramInstance::Claim;
using Kind = platform::InstanceRequest::Kind;

namespace {

const QString programName = QStringLiteral("com.corvane.Quillet");

/// Owns the program's name and, when it is activated, ends instead of answering.
class EndingOwner : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit EndingOwner(fakes::PrivateBus& bus)
        : bus_(bus)
        , connection_(bus.connect()) {
        connection_.registerObject(QStringLiteral("/com/corvane/Quillet"), this,
                                   QDBusConnection::ExportScriptableInvokables);
        connection_.registerService(programName);
    }

    Q_SCRIPTABLE void Activate(const QVariantMap&) {
        setDelayedReply(true);
        QMetaObject::invokeMethod(this, &EndingOwner::end, Qt::QueuedConnection);
    }

private:
    void end() {
        bus_.disconnect(connection_);
        // Whoever holds a connection keeps it open.
        connection_ = QDBusConnection(QStringLiteral("no such connection"));
    }

    fakes::PrivateBus& bus_;
    QDBusConnection connection_;
};

class BusProgramInstanceTest : public testing::Test {
protected:
    /// A further start, which may wait for this thread.
    std::future<Claim> start(ActivationToken given, std::chrono::milliseconds limit) {
        return std::async(std::launch::async, [connection = bus.connect(), given, limit] {
            return BusProgramInstance(connection, given, limit).claim(Kind::Activate);
        });
    }

    static Claim outcome(std::future<Claim>& start) {
        EXPECT_TRUE(fakes::waitUntil(
            [&] { return start.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        return start.get();
    }

    /// Calls the running program like the desktop; the name of the error, empty for none.
    QString call(const QString& method, const QVariantList& arguments) {
        auto message =
            QDBusMessage::createMethodCall(programName, QStringLiteral("/com/corvane/Quillet"),
                                           QStringLiteral("org.freedesktop.Application"), method);
        message.setArguments(arguments);
        QDBusPendingReply<> reply = caller.asyncCall(message, 5000);
        EXPECT_TRUE(fakes::waitUntil([&] { return reply.isFinished(); }));
        return reply.error().name();
    }

    core::Registration record(BusProgramInstance& instance) {
        return instance.setRequestHandler(
            [this](const InstanceRequest& request) { requests.push_back(request); });
    }

    static constexpr std::chrono::milliseconds longEnough{4000};
    const ActivationToken token{QStringLiteral("launcher-1_TIME77"), QStringLiteral("wayland-1")};
    fakes::PrivateBus bus;
    QDBusConnection caller = bus.connect();
    std::vector<InstanceRequest> requests;
};

} // namespace

TEST_F(BusProgramInstanceTest, ASecondStartHandsOverWithItsToken) {
    BusProgramInstance first(bus.connect(), {});
    ASSERT_EQ(first.claim(Kind::Activate), Claim::First);
    const auto handler = record(first);
    auto second = start(token, longEnough);
    EXPECT_EQ(outcome(second), Claim::HandedOver);
    ASSERT_TRUE(fakes::waitUntil([&] { return !requests.empty(); }));
    EXPECT_EQ(requests, (std::vector{InstanceRequest{Kind::Activate, token}}));
}

TEST_F(BusProgramInstanceTest, AProgramThatIsStillStartingGetsTheRequestLater) {
    BusProgramInstance first(bus.connect(), {});
    ASSERT_EQ(first.claim(Kind::Activate), Claim::First);
    auto second = start(token, longEnough);
    EXPECT_EQ(outcome(second), Claim::HandedOver);
    const auto handler = record(first);
    EXPECT_TRUE(requests.empty()) << "told before the caller of setRequestHandler was ready";
    ASSERT_TRUE(fakes::waitUntil([&] { return !requests.empty(); }));
    EXPECT_EQ(requests.front().token, token);
}

TEST_F(BusProgramInstanceTest, WhatAStartAsksForReachesWhoeverIsTheProgram) {
    BusProgramInstance first(bus.connect(), token);
    ASSERT_EQ(first.claim(Kind::Settings), Claim::First);
    auto second = std::async(std::launch::async, [connection = bus.connect(), this] {
        return BusProgramInstance(connection, token, longEnough).claim(Kind::Quit);
    });
    EXPECT_EQ(outcome(second), Claim::HandedOver);
    const auto handler = record(first);
    ASSERT_TRUE(fakes::waitUntil([&] { return requests.size() == 2; }));
    EXPECT_EQ(requests, (std::vector{InstanceRequest{Kind::Settings, token},
                                     InstanceRequest{Kind::Quit, token}}));
}

TEST_F(BusProgramInstanceTest, AProgramThatHangsIsGivenUpInTime) {
    BusProgramInstance hanging(bus.connect(), {});
    ASSERT_EQ(hanging.claim(Kind::Activate), Claim::First);
    testing::internal::CaptureStdout();
    // Nobody hands out events to this thread meanwhile.
    auto second = start({}, std::chrono::milliseconds(200));
    EXPECT_EQ(second.wait_for(std::chrono::seconds(3)), std::future_status::ready);
    EXPECT_EQ(second.get(), Claim::Unanswered);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Quillet: the program runs already, but does not answer: "
              "org.freedesktop.DBus.Error.NoReply\n");
}

TEST_F(BusProgramInstanceTest, AStrangerWithTheNameIsReportedAtOnce) {
    auto stranger = bus.connect();
    ASSERT_TRUE(stranger.registerService(programName));
    testing::internal::CaptureStdout();
    auto second = start({}, longEnough);
    EXPECT_EQ(outcome(second), Claim::Unanswered);
    EXPECT_NE(testing::internal::GetCapturedStdout().find("does not answer"), std::string::npos);
}

TEST_F(BusProgramInstanceTest, TakesOverFromAProgramThatEndsWithoutAnAnswer) {
    const EndingOwner ending(bus);
    auto second = start({}, longEnough);
    EXPECT_EQ(outcome(second), Claim::First);
}

TEST_F(BusProgramInstanceTest, WithoutABusEveryStartIsTheFirst) {
    testing::internal::CaptureStdout();
    const QDBusConnection none(QStringLiteral("no such connection"));
    EXPECT_EQ(BusProgramInstance(none, {}).claim(Kind::Activate), Claim::First);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(BusProgramInstanceTest, ActionsArriveInTheirOrderAndWaitWhileNobodyHandlesThem) {
    BusProgramInstance first(bus.connect(), {});
    ASSERT_EQ(first.claim(Kind::Activate), Claim::First);
    const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("id")},
                           {QStringLiteral("something else"), 7}};
    const auto action = [&](const QString& name) {
        return call(QStringLiteral("ActivateAction"), {name, QVariantList{}, data});
    };
    auto handler = record(first);
    EXPECT_EQ(action(QStringLiteral("settings")), QString());
    EXPECT_EQ(action(QStringLiteral("feedback")), QString());
    EXPECT_EQ(action(QStringLiteral("delete everything")),
              QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs"));
    ASSERT_TRUE(fakes::waitUntil([&] { return requests.size() == 2; }));

    handler.reset();
    EXPECT_EQ(call(QStringLiteral("Open"), {QStringList{QStringLiteral("file:///a")}, data}),
              QString());
    EXPECT_EQ(action(QStringLiteral("quit")), QString());
    EXPECT_EQ(requests.size(), 2U);
    handler = record(first);
    ASSERT_TRUE(fakes::waitUntil([&] { return requests.size() == 4; }));
    const ActivationToken id{QStringLiteral("id"), {}};
    EXPECT_EQ(
        requests,
        (std::vector<InstanceRequest>{
            {Kind::Settings, id}, {Kind::Feedback, id}, {Kind::Activate, id}, {Kind::Quit, id}}));
}

TEST_F(BusProgramInstanceTest, TenStartsAtOnceAreOneProgramAndNineThatHandOver) {
    std::array<QProcess, 10> starts;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    for (auto& process : starts) {
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUILLET_INSTANCE_STARTER), {QStringLiteral("9")});
    }
    QByteArrayList said;
    for (auto& process : starts) {
        ASSERT_TRUE(process.waitForFinished(20'000));
        EXPECT_EQ(process.exitCode(), 0);
        said.append(process.readAllStandardOutput());
    }
    EXPECT_EQ(said.count("was told nine times\n"), 1);
    EXPECT_EQ(said.count("handed over\n"), 9);
}

#include "BusProgramInstanceTest.moc"
