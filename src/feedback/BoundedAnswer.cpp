#include "feedback/BoundedAnswer.h"

#include <QNetworkReply>

namespace feedback {

namespace {
constexpr qint64 readAhead = 64 * 1024;
}

BoundedAnswer::BoundedAnswer(QNetworkReply& reply, qsizetype requestSize, const Limits& limits)
    : reply_(reply)
    , limits_(limits) {
    // The rest waits in the network, not in memory.
    reply_.setReadBufferSize(readAhead);
    timer_.setSingleShot(true);
    // With the timer as their context they end with this object.
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { giveUp(); });
    QObject::connect(&reply_, &QIODevice::readyRead, &timer_, [this] { read(); });
    QObject::connect(&reply_, &QNetworkReply::uploadProgress, &timer_,
                     [this, requestSize](qint64 sent, qint64) {
                         if (sent >= requestSize && !timer_.isActive()) {
                             timer_.start(limits_.time);
                         }
                     });
}

QByteArray BoundedAnswer::body() {
    body_ += reply_.readAll();
    return body_;
}

void BoundedAnswer::read() {
    if (isTooLarge()) {
        return; // It is being given up.
    }
    body_ += reply_.readAll();
    if (isTooLarge()) {
        giveUp();
    }
}

/// From the event loop: whoever waits for the reply ends this object when it finishes.
void BoundedAnswer::giveUp() {
    QMetaObject::invokeMethod(&reply_, &QNetworkReply::abort, Qt::QueuedConnection);
}

} // namespace feedback
