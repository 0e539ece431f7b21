#include "platform/appcast/HttpsFeedTransport.h"

#include "fakes/Eventually.h"
#include "fakes/HttpsServer.h"
#include "platform/qt/QtRunLoop.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

class HttpsFeedTransportTest : public testing::Test {
protected:
    /// The feed, or why there is none.
    QString fetch(const QString& address, Seconds time = Seconds(10)) {
        HttpsFeedTransport transport(runLoop, {.time = time});
        std::optional<FeedAnswer> received;
        const auto download = transport.fetch(QUrl(address), [&](FeedAnswer answer) {
            EXPECT_FALSE(received) << "answered twice";
            received = std::move(answer);
        });
        EXPECT_FALSE(received) << "answered at once";
        fakes::eventually([&] { return received.has_value(); });
        QCoreApplication::processEvents();
        if (!received) {
            return u"no answer"_s;
        }
        const auto* error = std::get_if<AppcastError>(&*received);
        return error != nullptr ? error->reason
                                : QString::fromUtf8(std::get<QByteArray>(*received));
    }
    QString fetchEndingWith(const char* end, Seconds time = Seconds(10)) {
        return fetch(server.address("https", {.end = QLatin1String(end)}), time);
    }

    QtRunLoop runLoop;
    fakes::HttpsServer server;
};

TEST_F(HttpsFeedTransportTest, reads_nothing_that_is_not_secure) {
    const auto redirectTo = [&](const char* port) {
        return server.address(
            "https", {.status = 302, .header = u"Location:"_s + server.address(port, {})});
    };
    EXPECT_EQ(fetch(server.address("https", {.body = "<rss/>"})), u"<rss/>"_s);
    for (const QString& address : {server.address("http"), QString(), u"https:"_s,
                                   u"file:///etc/passwd"_s, u"feed.xml"_s}) {
        EXPECT_EQ(fetch(address), u"its address is not one of https"_s) << address.toStdString();
    }
    server.requests();
    EXPECT_EQ(fetch(redirectTo("http")),
              u"the server sends elsewhere, where the connection is not secure"_s);
    for (const QString& address :
         {server.address("other"), server.address("stranger"), redirectTo("stranger")}) {
        const QString said = fetch(address);
        EXPECT_TRUE(said.startsWith(u"SSL handshake failed"_s)) << said.toStdString();
    }
    EXPECT_EQ(server.requests().size(), 2) << "the redirects, and nothing behind them";
}

TEST_F(HttpsFeedTransportTest, gives_up_on_a_feed_that_is_too_large_before_it_has_all_of_it) {
    EXPECT_EQ(fetchEndingWith("endless"), u"the feed is too large"_s);
    EXPECT_LT(server.sent(), 30e6);
    EXPECT_LT(fetchEndingWith("packed").size(), 1'000'000) << "it was unpacked";
}

TEST_F(HttpsFeedTransportTest, gives_up_in_time_and_says_what_went_wrong) {
    const QString late = u"the server did not answer in time"_s;
    EXPECT_EQ(fetchEndingWith("silent", Seconds(0.5)), late);
    EXPECT_EQ(fetchEndingWith("drip", Seconds(0.5)), late);
    EXPECT_EQ(fetch(server.address("https", {.status = 404})),
              u"the server answered with status 404"_s);
    EXPECT_EQ(fetchEndingWith("circle"), u"the server sends from one place to the next"_s);
    EXPECT_EQ(fetch(u"https://127.0.0.1:1/"_s), u"Connection refused"_s);
}

} // namespace

} // namespace platform
