#include "platform/appcast/HttpsFeedTransport.h"

#include "platform/appcast/AppcastDefaults.h"

#include <QNetworkReply>
#include <QNetworkRequest>

#include <memory>
#include <utility>

namespace platform {

namespace {

constexpr int mostRedirects = 5;
constexpr qint64 readAhead = 64 * 1024;

QNetworkRequest requestFor(const QUrl& address) {
    QNetworkRequest request(address);
    // Coming from https, nothing less safe is followed.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    // Unpacked, a small answer could become endless.
    request.setRawHeader("Accept-Encoding", "identity");
    // The client would tell the user's languages otherwise.
    request.setRawHeader("Accept-Language", "*");
    request.setRawHeader("User-Agent", "Corvane-Quillet");
    return request;
}

QString reasonOf(const QNetworkReply& reply) {
    switch (reply.error()) {
    case QNetworkReply::InsecureRedirectError:
        return QStringLiteral("the server sends elsewhere, where the connection is not secure");
    case QNetworkReply::TooManyRedirectsError:
        return QStringLiteral("the server sends from one place to the next");
    case QNetworkReply::HostNotFoundError:
        return QStringLiteral("the server was not found");
    default:
        break;
    }
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // A status below is that of a redirect on the way to what failed.
    return status >= 400 ? QStringLiteral("the server answered with status %1").arg(status)
                         : reply.errorString();
}

/// One request, until it is answered or called off.
class Download final : public QObject {
public:
    Download(HttpsFeedTransport::Limits limits, std::function<void(FeedAnswer)> answered)
        : limits_(limits)
        , answered_(std::move(answered)) {}

    void start(RunLoop& runLoop, const QUrl& address) {
        reply_ = session_->get(requestFor(address));
        // The rest waits in the network, not in memory, until it has been judged.
        reply_->setReadBufferSize(readAhead);
        connect(reply_, &QIODevice::readyRead, this, [this] { read(); });
        connect(reply_, &QNetworkReply::finished, this, [this] {
            if (reply_->error() != QNetworkReply::NoError) {
                answer(AppcastError{reasonOf(*reply_)});
            } else if (read()) {
                answer(std::move(feed_));
            }
        });
        timeLimit_ = runLoop.scheduleOnce(limits_.time, RunLoopMode::Common, [this] {
            answer(AppcastError{QStringLiteral("the server did not answer in time")});
        });
    }

    /// Ends and deletes the download; nothing is answered any more.
    void callOff() {
        timeLimit_.reset();
        reply_->disconnect(this);
        reply_->abort();
        if (isAnswering_) {
            deleteLater(); // by one of its own handlers
        } else {
            delete this;
        }
    }

private:
    /// Whether the feed is still of a bearable size.
    bool read() {
        feed_ += reply_->readAll();
        if (feed_.size() > limits_.bytes) {
            answer(AppcastError{QStringLiteral("the feed is too large")});
            return false;
        }
        return true;
    }

    /// Whoever is answered may call this download off.
    void answer(FeedAnswer answer) {
        if (const auto answered = std::exchange(answered_, nullptr)) {
            isAnswering_ = true;
            answered(std::move(answer));
            isAnswering_ = false;
        }
    }

    HttpsFeedTransport::Limits limits_;
    std::function<void(FeedAnswer)> answered_;
    QByteArray feed_;
    bool isAnswering_ = false;
    /// Gone after each look, and with it its thread and its connections.
    std::unique_ptr<QNetworkAccessManager> session_ = makeAppcastSession();
    QNetworkReply* reply_ = nullptr;
    core::Registration timeLimit_;
};

} // namespace

core::Registration HttpsFeedTransport::fetch(const QUrl& address,
                                             std::function<void(FeedAnswer)> answered) {
    if (!address.isValid() || address.scheme() != u"https" || address.host().isEmpty()) {
        return runLoop_.scheduleOnce(
            Seconds(0), RunLoopMode::Common, [answered = std::move(answered)] {
                answered(AppcastError{QStringLiteral("its address is not one of https")});
            });
    }
    auto* download = std::make_unique<Download>(limits_, std::move(answered)).release();
    download->start(runLoop_, address);
    return core::Registration([download] { download->callOff(); });
}

} // namespace platform
