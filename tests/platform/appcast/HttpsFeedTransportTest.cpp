#include "platform/appcast/HttpsFeedTransport.h"

#include "fakes/Eventually.h"
#include "platform/qt/QtRunLoop.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int patience = 20'000; // milliseconds until a silent server fails the test

class FeedServer {
public:
    FeedServer() {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral(PYTHON), {QStringLiteral(FEED_SERVER), folder_.path()});
        ports_ = readLine();
        qputenv("QUILLET_TEST_AUTHORITY", QFile::encodeName(folder_.filePath(u"authority.pem"_s)));
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
        return QUrl(
            u"%1://127.0.0.1:%2/%3"_s.arg(isPlain ? u"http"_s : u"https"_s, port(server), path));
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
        fakes::eventually([&] { return received.has_value(); });
        QCoreApplication::processEvents();
        if (!received) {
            return u"no answer"_s;
        }
        const auto* error = std::get_if<AppcastError>(&*received);
        return error != nullptr ? error->reason
                                : QString::fromUtf8(std::get<QByteArray>(*received));
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

TEST_F(HttpsFeedTransportTest, reads_nothing_that_is_not_secure) {
    server().publish("feed.xml", "<rss/>");
    const QString toPlain = u"to/%1/feed.xml"_s.arg(server().port("http"));
    const QString toStranger = u"to/%1/feed.xml"_s.arg(server().port("stranger"));
    const QString insecure = u"its address is not one of https"_s;
    for (const QUrl& address : {server().url("http", u"feed.xml"_s), QUrl(), QUrl(u"https:"_s),
                                QUrl(u"file:///etc/passwd"_s), QUrl(u"feed.xml"_s)}) {
        EXPECT_EQ(fetch(address), insecure) << address.toString().toStdString();
    }
    const int before = server().traffic()[u"requests"_s].toInt();
    EXPECT_EQ(fetch(server().url("https", toPlain)),
              u"the server sends elsewhere, where the connection is not secure"_s);
    for (const QUrl& address :
         {server().url("other", u"feed.xml"_s), server().url("stranger", u"feed.xml"_s),
          server().url("https", toStranger)}) {
        EXPECT_TRUE(fetch(address).startsWith(u"SSL handshake failed"_s))
            << fetch(address).toStdString();
    }
    // The redirects were asked for, and nothing behind them.
    EXPECT_EQ(server().traffic()[u"requests"_s].toInt() - before, 2);
}

TEST_F(HttpsFeedTransportTest, gives_up_on_a_feed_that_is_too_large_before_it_has_all_of_it) {
    const double before = server().traffic()[u"sent"_s].toDouble();
    EXPECT_EQ(fetch(server().url("https", u"endless"_s)), u"the feed is too large"_s);
    EXPECT_LT(server().traffic()[u"sent"_s].toDouble() - before, 30e6);

    const QString packed = fetch(server().url("https", u"packed"_s));
    EXPECT_LT(packed.size(), 1'000'000) << "it was unpacked";
}

TEST_F(HttpsFeedTransportTest, gives_up_in_time_and_says_what_went_wrong) {
    const QString late = u"the server did not answer in time"_s;
    EXPECT_EQ(fetch(server().url("https", u"silent"_s), Seconds(0.5)), late);
    EXPECT_EQ(fetch(server().url("https", u"drip"_s), Seconds(0.5)), late);
    EXPECT_EQ(fetch(server().url("https", u"missing"_s)), u"the server answered with status 404"_s);
    EXPECT_EQ(fetch(server().url("https", u"circle"_s)),
              u"the server sends from one place to the next"_s);
    EXPECT_EQ(fetch(QUrl(u"https://127.0.0.1:1/"_s)), u"Connection refused"_s);
}

} // namespace

} // namespace platform
