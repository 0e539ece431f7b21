#include "platform/linux/appcast/HttpsFeedTransport.h"

#include "platform/qt/QtRunLoop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace platform {

namespace {

constexpr int patience = 20'000; // milliseconds until a silent server fails the test

class FeedServer {
public:
    FeedServer() {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral(PYTHON), {QStringLiteral(FEED_SERVER), folder_.path()});
        ports_ = readLine();
        qputenv("QUILLET_TEST_AUTHORITY",
                QFile::encodeName(folder_.filePath(QStringLiteral("authority.pem"))));
    }
    ~FeedServer() {
        process_.closeWriteChannel();
        if (!process_.waitForFinished(patience)) {
            process_.kill();
            process_.waitForFinished(patience);
        }
    }

    QString port(const char* name) const { return ports_[QLatin1String(name)].toString(); }
    QUrl url(const char* server, const QString& path) const {
        const bool isPlain = QLatin1String(server) == QLatin1String("http");
        return QUrl(QStringLiteral("%1://127.0.0.1:%2/%3")
                        .arg(isPlain ? QStringLiteral("http") : QStringLiteral("https"),
                             port(server), path));
    }
    void publish(const char* name, const QByteArray& feed) const {
        QFile file(folder_.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(feed), feed.size());
    }
    QJsonObject traffic() {
        process_.write("\n");
        return readLine();
    }

private:
    QJsonObject readLine() {
        while (!process_.canReadLine()) {
            if (!process_.waitForReadyRead(patience)) {
                ADD_FAILURE() << "the server says nothing";
                return {};
            }
        }
        return QJsonDocument::fromJson(process_.readLine()).object();
    }

    QTemporaryDir folder_;
    QProcess process_;
    QJsonObject ports_;
};

class HttpsFeedTransportTest : public testing::Test {
protected:
    /// The feed, or why there is none.
    static QString fetch(const QUrl& address, Seconds time = Seconds(10)) {
        HttpsFeedTransport transport(runLoop(), {.time = time});
        std::optional<FeedAnswer> received;
        const auto download = transport.fetch(address, [&](FeedAnswer answer) {
            EXPECT_FALSE(received) << "answered twice";
            received = std::move(answer);
        });
        EXPECT_FALSE(received) << "answered at once";
        waitFor([&] { return received.has_value(); });
        QCoreApplication::processEvents();
        if (!received) {
            return QStringLiteral("no answer");
        }
        const auto* error = std::get_if<AppcastError>(&*received);
        return error != nullptr ? error->reason
                                : QString::fromUtf8(std::get<QByteArray>(*received));
    }
    static void waitFor(const std::function<bool()>& condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < patience) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        }
    }
    static QtRunLoop& runLoop() { return *runLoop_; }
    static FeedServer& server() { return *server_; }

    static void SetUpTestSuite() {
        runLoop_ = std::make_unique<QtRunLoop>();
        server_ = std::make_unique<FeedServer>();
    }
    static void TearDownTestSuite() {
        server_.reset();
        runLoop_.reset();
    }

private:
    static inline std::unique_ptr<QtRunLoop> runLoop_;
    static inline std::unique_ptr<FeedServer> server_;
};

TEST_F(HttpsFeedTransportTest, reads_feeds_over_https_wherever_they_moved) {
    server().publish("feed.xml", "<rss/>\xc3\xa4");
    EXPECT_EQ(fetch(server().url("https", QStringLiteral("feed.xml"))), QStringLiteral("<rss/>ä"));
    const QString moved = QStringLiteral("to/%1/feed.xml").arg(server().port("https"));
    EXPECT_EQ(fetch(server().url("https", moved)), QStringLiteral("<rss/>ä"));
}

TEST_F(HttpsFeedTransportTest, reads_nothing_that_is_not_secure) {
    server().publish("feed.xml", "<rss/>");
    const QString toPlain = QStringLiteral("to/%1/feed.xml").arg(server().port("http"));
    const QString toStranger = QStringLiteral("to/%1/feed.xml").arg(server().port("stranger"));
    const QString insecure = QStringLiteral("its address is not one of https");
    for (const QUrl& address :
         {server().url("http", QStringLiteral("feed.xml")), QUrl(), QUrl(QStringLiteral("https:")),
          QUrl(QStringLiteral("file:///etc/passwd")), QUrl(QStringLiteral("feed.xml"))}) {
        EXPECT_EQ(fetch(address), insecure) << address.toString().toStdString();
    }
    const int before = server().traffic()[QStringLiteral("requests")].toInt();
    EXPECT_EQ(fetch(server().url("https", toPlain)),
              QStringLiteral("the server sends elsewhere, where the connection is not secure"));
    for (const QUrl& address : {server().url("other", QStringLiteral("feed.xml")),
                                server().url("stranger", QStringLiteral("feed.xml")),
                                server().url("https", toStranger)}) {
        EXPECT_TRUE(fetch(address).startsWith(QStringLiteral("SSL handshake failed")))
            << fetch(address).toStdString();
    }
    // The redirects were asked for, and nothing behind them.
    EXPECT_EQ(server().traffic()[QStringLiteral("requests")].toInt() - before, 2);
}

TEST_F(HttpsFeedTransportTest, gives_up_on_a_feed_that_is_too_large_before_it_has_all_of_it) {
    const double before = server().traffic()[QStringLiteral("sent")].toDouble();
    EXPECT_EQ(fetch(server().url("https", QStringLiteral("endless"))),
              QStringLiteral("the feed is too large"));
    EXPECT_LT(server().traffic()[QStringLiteral("sent")].toDouble() - before, 30e6);

    const QString packed = fetch(server().url("https", QStringLiteral("packed")));
    EXPECT_LT(packed.size(), 1'000'000) << "it was unpacked";
}

TEST_F(HttpsFeedTransportTest, gives_up_in_time_and_says_what_went_wrong) {
    const QString late = QStringLiteral("the server did not answer in time");
    EXPECT_EQ(fetch(server().url("https", QStringLiteral("silent")), Seconds(0.5)), late);
    EXPECT_EQ(fetch(server().url("https", QStringLiteral("drip")), Seconds(0.5)), late);
    EXPECT_EQ(fetch(server().url("https", QStringLiteral("missing"))),
              QStringLiteral("the server answered with status 404"));
    EXPECT_EQ(fetch(server().url("https", QStringLiteral("circle"))),
              QStringLiteral("the server sends from one place to the next"));
    EXPECT_EQ(fetch(QUrl(QStringLiteral("https://127.0.0.1:1/"))),
              QStringLiteral("Connection refused"));
}

TEST_F(HttpsFeedTransportTest, does_not_answer_once_it_was_called_off) {
    HttpsFeedTransport transport(runLoop());
    const int before = server().traffic()[QStringLiteral("requests")].toInt();
    bool answered = false;
    auto download = transport.fetch(server().url("https", QStringLiteral("drip")),
                                    [&](const FeedAnswer&) { answered = true; });
    waitFor([&] { return server().traffic()[QStringLiteral("requests")].toInt() > before; });
    download.reset();
    EXPECT_EQ(fetch(server().url("https", QStringLiteral("missing"))),
              QStringLiteral("the server answered with status 404"));
    EXPECT_FALSE(answered);
}

} // namespace

} // namespace platform
