#include "platform/linux/freedesktop/ApplicationObject.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

const QString& startupIdKey() {
    static const QString key = QStringLiteral("desktop-startup-id");
    return key;
}

const QString& xdgTokenKey() {
    static const QString key = QStringLiteral("activation-token");
    return key;
}

std::optional<InstanceRequest::Kind> kindOfAction(const QString& name) {
    if (name == u"settings") {
        return InstanceRequest::Kind::Settings;
    }
    if (name == u"feedback") {
        return InstanceRequest::Kind::Feedback;
    }
    if (name == u"quit") {
        return InstanceRequest::Kind::Quit;
    }
    return std::nullopt;
}

} // namespace

QVariantMap platformData(const ActivationToken& token) {
    QVariantMap data;
    if (!token.startupId.isEmpty()) {
        data.insert(startupIdKey(), token.startupId);
    }
    if (!token.xdgToken.isEmpty()) {
        data.insert(xdgTokenKey(), token.xdgToken);
    }
    return data;
}

ActivationToken activationToken(const QVariantMap& platformData) {
    return {platformData.value(startupIdKey()).toString(),
            platformData.value(xdgTokenKey()).toString()};
}

core::Registration ApplicationObject::setRequestHandler(ProgramInstance::Handler handler) {
    handler_ = std::move(handler);
    deliver();
    return core::Registration([this] { handler_ = nullptr; });
}

void ApplicationObject::Activate(const QVariantMap& platformData) {
    accept(InstanceRequest::Kind::Activate, platformData);
}

void ApplicationObject::Open(const QStringList&, const QVariantMap& platformData) {
    accept(InstanceRequest::Kind::Activate, platformData);
}

void ApplicationObject::ActivateAction(const QString& name, const QVariantList&,
                                       const QVariantMap& platformData) {
    if (const auto kind = kindOfAction(name)) {
        accept(*kind, platformData);
    } else if (calledFromDBus()) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no action of that name"));
    }
}

void ApplicationObject::accept(InstanceRequest::Kind kind, const QVariantMap& platformData) {
    undelivered_.push_back({kind, activationToken(platformData)});
    deliver();
}

void ApplicationObject::deliver() {
    // Later, so that the caller has its answer first, however long the handler takes.
    QMetaObject::invokeMethod(
        this,
        [this] {
            while (handler_ && !undelivered_.empty()) {
                const InstanceRequest request = undelivered_.front();
                undelivered_.pop_front();
                // A copy: the handler may end its own registration.
                const auto handler = handler_;
                handler(request);
            }
        },
        Qt::QueuedConnection);
}

} // namespace platform
