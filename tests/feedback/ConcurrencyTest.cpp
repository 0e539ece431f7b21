// Several records, threads and lifetimes.
#include "feedback/Sending.h"

#include <QThread>

#include <memory>

namespace feedback {

TEST_F(Sending, TheServiceMayBeGoneBeforeTheAnswerComes) {
    auto shortLived = std::make_unique<FeedbackService>(service(server.endpoint("https")));
    auto task = shortLived->send(payload);
    shortLived.reset();
    EXPECT_EQ(outcome(std::move(task)).id, u"r1");
}

TEST_F(Sending, ManyAreUnderWayAtOnce) {
    const FeedbackService sender = service(server.endpoint("https"));
    payload.screenshotPNG = QByteArray(200'000, 'p');
    std::vector<QCoro::Task<QString>> tasks;
    for (int count = 0; count < 10; ++count) {
        tasks.push_back(sender.send(payload));
    }
    for (auto& task : tasks) {
        EXPECT_EQ(outcome(std::move(task)).id, u"r1");
    }
    EXPECT_EQ(server.requests().size(), 10);
}

TEST_F(Sending, AnyThreadMaySend) {
    const FeedbackService sender(server.endpoint("http"));
    Outcome result;
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { result = outcome(sender.send(payload)); }));
    thread->start();
    ASSERT_TRUE(thread->wait(20'000));
    EXPECT_EQ(result.id, u"r1");
}

} // namespace feedback
