#pragma once

#include <QByteArray>
#include <QTimer>

#include <chrono>

class QNetworkReply;

namespace feedback {

/// Gathers the body of a reply while it comes, and gives up on one that is too large, or that is not
/// whole in time once the request is sent: the client itself only counts the time without a byte.
class BoundedAnswer {
public:
    struct Limits {
        qsizetype bytes = 1024 * 1024;
        std::chrono::milliseconds time = std::chrono::seconds(30);
    };

    /// Of a request with a body of that size. The reply outlives this object.
    BoundedAnswer(QNetworkReply& reply, qsizetype requestSize, const Limits& limits);

    /// What came; complete once the reply has finished.
    QByteArray body();
    bool isTooLarge() const { return body_.size() > limits_.bytes; }

private:
    void read();
    void giveUp();

    QNetworkReply& reply_;
    Limits limits_;
    QByteArray body_;
    QTimer timer_;
};

} // namespace feedback
