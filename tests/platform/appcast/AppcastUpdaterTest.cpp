#include "platform/appcast/AppcastUpdater.h"

#include "fakes/FakePlatform.h"

#include <QTemporaryDir>
#include <QTimeZone>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

struct FakeTransport final : FeedTransport {
    std::vector<QUrl> asked;
    std::function<void(FeedAnswer)> answered;

    core::Registration fetch(const QUrl& address, std::function<void(FeedAnswer)> done) override {
        asked.push_back(address);
        answered = std::move(done);
        return core::Registration([this] { answered = nullptr; });
    }
    void answer(FeedAnswer answer) {
        ASSERT_TRUE(answered);
        const auto handler = answered;
        handler(std::move(answer));
    }
};

struct FakeNotifications final : UserNotifications {
    std::vector<UserNotification> shown;
    std::function<void()> activated;

    core::Registration show(const UserNotification& notification,
                            std::function<void()> handler) override {
        shown.push_back(notification);
        activated = std::move(handler);
        return core::Registration([this] { activated = nullptr; });
    }
};

struct FakePresenter final : UpdatePresenter {
    std::vector<UpdateAnswer> shown;
    std::function<void(UpdateChoice)> choose;

    void present(const UpdateAnswer& answer, std::function<void(UpdateChoice)> handler) override {
        shown.push_back(answer);
        choose = std::move(handler);
    }
    template <typename Answer>
    const Answer* last() const {
        return shown.empty() ? nullptr : std::get_if<Answer>(&shown.back());
    }
};

QByteArray feedWith(const QByteArray& version, const QByteArray& more = {}) {
    return R"(<rss xmlns:s="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>
        <link>https://quillet.invalid/download</link><s:shortVersionString>)" +
           version +
           "</s:shortVersionString><s:version>9</s:version><description>&lt;li&gt;New</"
           "description>" +
           more + "</item></channel></rss>";
}

class AppcastUpdaterTest : public testing::Test {
protected:
    static constexpr double hour = 3600;

    std::unique_ptr<AppcastUpdater> makeUpdater() {
        auto updater = std::make_unique<AppcastUpdater>(
            AppcastConfiguration{u"https://quillet.invalid/feed"_s,
                                 {{u"1.0.2"_s, u"7"_s}, {12, 0, 0}},
                                 {u"linux"_s, {}},
                                 folder.filePath(u"state/updates.json"_s),
                                 [this] {
                                     return QDateTime({2026, 11, 23}, {12, 0}, QTimeZone::utc())
                                         .addMSecs(qint64(system.runLoop.now() * 1000));
                                 }},
            system.runLoop, transport, system.workspace, notifications);
        presenting = updater->setPresenter(presenter);
        return updater;
    }

    QTemporaryDir folder;
    fakes::FakePlatform system;
    FakeTransport transport;
    FakeNotifications notifications;
    FakePresenter presenter;
    core::Registration presenting;
};

TEST_F(AppcastUpdaterTest, looks_once_a_day_from_the_start_on_and_over_restarts) {
    auto updater = makeUpdater();
    system.runLoop.advance(30 * hour);
    EXPECT_TRUE(transport.asked.empty());

    updater->startUpdater();
    updater->startUpdater();
    ASSERT_EQ(transport.asked.size(), 1U);
    transport.answer(feedWith("1.0.1"));
    system.runLoop.advance(23.5 * hour);
    EXPECT_EQ(transport.asked.size(), 1U);

    updater = makeUpdater();
    updater->startUpdater();
    EXPECT_EQ(transport.asked.size(), 1U);
    system.runLoop.advance(hour);
    EXPECT_EQ(transport.asked.size(), 2U);
    EXPECT_TRUE(presenter.shown.empty());
    EXPECT_TRUE(notifications.shown.empty());
}

TEST_F(AppcastUpdaterTest,
       keeps_silent_on_a_skipped_version_but_not_on_the_next_or_a_critical_one) {
    auto updater = makeUpdater();
    updater->checkForUpdates();
    transport.answer(feedWith("1.1"));
    presenter.choose(UpdateChoice::SkipVersion);

    updater = makeUpdater();
    updater->startUpdater();
    const auto nextDay = [&](const QByteArray& feed) {
        system.runLoop.advance(24 * hour);
        transport.answer(feed);
        return notifications.shown.size();
    };
    EXPECT_EQ(nextDay(feedWith("1.1")), 0U);
    EXPECT_EQ(nextDay(feedWith("1.1", "<s:criticalUpdate/>")), 1U);
    EXPECT_EQ(presenter.shown.size(), 2U) << "nothing since the user asked";
    const auto activate = notifications.activated;
    activate();
    EXPECT_EQ(presenter.shown.size(), 3U);
    EXPECT_FALSE(notifications.activated) << "it is withdrawn";
    EXPECT_EQ(nextDay(feedWith("1.1.1")), 2U);

    // Who asks is told all the same.
    updater->checkForUpdates();
    transport.answer(feedWith("1.1"));
    EXPECT_EQ(presenter.last<UpdateAvailable>()->version, u"1.1"_s);
}

TEST_F(AppcastUpdaterTest, always_answers_when_asked) {
    const auto updater = makeUpdater();
    updater->checkForUpdates();
    EXPECT_NE(presenter.last<CheckingForUpdates>(), nullptr);
    transport.answer(feedWith("1.0.2"));
    EXPECT_EQ(presenter.last<UpdateAvailable>()->version, u"1.0.2 (9)"_s);
    EXPECT_EQ(presenter.last<UpdateAvailable>()->installedVersion, u"1.0.2 (7)"_s);

    updater->checkForUpdates();
    transport.answer(feedWith("1.0.1"));
    ASSERT_NE(presenter.last<ProgramIsUpToDate>(), nullptr);
    EXPECT_EQ(presenter.last<ProgramIsUpToDate>()->installedVersion, u"1.0.2"_s);

    updater->checkForUpdates();
    transport.answer(AppcastError{u"the server did not answer in time"_s});
    ASSERT_NE(presenter.last<UpdateCheckFailed>(), nullptr);
    EXPECT_EQ(presenter.last<UpdateCheckFailed>()->reason, u"the server did not answer in time"_s);
}

} // namespace

} // namespace platform
