#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>

#include <functional>

namespace fakes {

/// Answers whatever is asked over a connection, in a thread of its own where the one who asks waits
/// for the answer in the test's.
class Responder final : public QDBusVirtualObject {
public:
    /// `answer` may give an invalid message: then there is no answer at all.
    Responder(const QDBusConnection& connection,
              std::function<QDBusMessage(const QDBusMessage&)> answer,
              QThread* server = QThread::currentThread())
        : connection_(connection)
        , answer_(std::move(answer)) {
        connection_.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        moveToThread(server);
    }
    ~Responder() override {
        connection_.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        const QDBusMessage reply = answer_(call);
        return reply.type() == QDBusMessage::InvalidMessage || connection.send(reply);
    }

private:
    QDBusConnection connection_;
    std::function<QDBusMessage(const QDBusMessage&)> answer_;
};

} // namespace fakes
