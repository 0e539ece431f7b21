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
    using enum InstanceRequest::Kind;
    for (const InstanceRequest::Kind kind : {Settings, Feedback, Quit}) {
        if (name == actionName(kind)) {
            return kind;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<QString> actionName(InstanceRequest::Kind kind) {
    switch (kind) {
    case InstanceRequest::Kind::Activate:
        return std::nullopt;
    case InstanceRequest::Kind::Settings:
        return QStringLiteral("settings");
    case InstanceRequest::Kind::Feedback:
        return QStringLiteral("feedback");
    case InstanceRequest::Kind::Quit:
        return QStringLiteral("quit");
    }
    Q_UNREACHABLE();
}

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
    return requests_.setRequestHandler(std::move(handler));
}

void ApplicationObject::Activate(const QVariantMap& platformData) {
    accept({InstanceRequest::Kind::Activate, activationToken(platformData)});
}

void ApplicationObject::Open(const QStringList&, const QVariantMap& platformData) {
    accept({InstanceRequest::Kind::Activate, activationToken(platformData)});
}

void ApplicationObject::ActivateAction(const QString& name, const QVariantList&,
                                       const QVariantMap& platformData) {
    if (const auto kind = kindOfAction(name)) {
        accept({*kind, activationToken(platformData)});
    } else if (calledFromDBus()) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no action of that name"));
    }
}

void ApplicationObject::accept(InstanceRequest request) {
    requests_.accept(std::move(request));
}

} // namespace platform
