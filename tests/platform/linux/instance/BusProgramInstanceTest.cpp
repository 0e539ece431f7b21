#include "platform/linux/freedesktop/BusProgramInstance.h"

#include "PrivateBus.h"
#include "fakes/Eventually.h"

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

