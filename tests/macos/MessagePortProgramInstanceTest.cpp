#include "platform/macos/MessagePortProgramInstance.h"

#include "macos/fakes/c/MessagePortsFake.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <optional>

using platform::InstanceRequest;
using platform::MessagePortProgramInstance;
using Claim = platform::ProgramInstance::Claim;
using Kind = platform::InstanceRequest::Kind;

namespace {

class MessagePortProgramInstanceTest : public testing::Test {
protected:
    MessagePortProgramInstanceTest() { ports = {}; }
    ~MessagePortProgramInstanceTest() override {
        program.reset();
        EXPECT_EQ(appleFake::liveObjects(), 0);
    }

    static Claim start(Kind asked) { return MessagePortProgramInstance().claim(asked); }

    core::Registration listen() {
        return program->setRequestHandler(
            [this](const InstanceRequest& request) { received.push_back(request.kind); });
    }

    appleFake::MessagePorts& ports = appleFake::messagePorts();
    std::optional<MessagePortProgramInstance> program{std::in_place};
    std::vector<Kind> received;
};

TEST_F(MessagePortProgramInstanceTest, WhatFurtherStartsAskForReachesTheProgramInOrder) {
    EXPECT_EQ(program->claim(Kind::Feedback), Claim::First);
    for (const Kind asked : {Kind::Settings, Kind::Activate, Kind::Quit}) {
        EXPECT_EQ(start(asked), Claim::HandedOver);
    }
    auto listening = listen();
    EXPECT_TRUE(received.empty()) << "not before the event loop";
    QCoreApplication::processEvents();
    EXPECT_EQ(received, (std::vector{Kind::Feedback, Kind::Settings, Kind::Activate, Kind::Quit}));

    listening.reset();
    EXPECT_EQ(start(Kind::Feedback), Claim::HandedOver);
    QCoreApplication::processEvents();
    EXPECT_EQ(received.size(), 4U);
    listening = listen();
    QCoreApplication::processEvents();
    EXPECT_EQ(received.back(), Kind::Feedback);

    program.reset();
    EXPECT_EQ(start(Kind::Activate), Claim::First) << "the name is free again";
}

TEST_F(MessagePortProgramInstanceTest, WhoeverHasTheNameDecidesWhatBecomesOfAStart) {
    struct Row {
        std::vector<SInt32> answers;
        Claim expected;
    };
    const std::vector<Row> rows{
        {{}, Claim::First},
        {{kCFMessagePortSuccess}, Claim::HandedOver},
        {{kCFMessagePortSendTimeout}, Claim::Unanswered},
        {{kCFMessagePortReceiveTimeout}, Claim::Unanswered},
        {{kCFMessagePortIsInvalid}, Claim::First},
        {{kCFMessagePortTransportError, kCFMessagePortSuccess}, Claim::HandedOver},
        {std::vector<SInt32>(9, kCFMessagePortBecameInvalidError), Claim::First},
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ports = {};
        ports.answersOfOwner = rows[i].answers;
        EXPECT_EQ(start(Kind::Activate), rows[i].expected) << "row " << i;
        for (const auto& [send, receive] : ports.limits) {
            EXPECT_GT(send, 0);
            EXPECT_GT(receive, 0);
            EXPECT_LE(send + receive, 5);
        }
    }
}

TEST_F(MessagePortProgramInstanceTest, WithoutAPortItStillStartsAndDoesWhatItWasAskedFor) {
    ports.localCanBeMade = false;
    EXPECT_EQ(program->claim(Kind::Settings), Claim::First);
    const auto listening = listen();
    QCoreApplication::processEvents();
    EXPECT_EQ(received, std::vector{Kind::Settings});
}

} // namespace
