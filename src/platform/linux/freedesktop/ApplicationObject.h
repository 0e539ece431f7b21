#pragma once

#include "core/Registration.h"
#include "platform/ProgramInstance.h"

#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

#include <deque>

namespace platform {

/// The program as others on the bus see it: an application that can be activated and has the
/// actions "settings", "feedback" and "quit". Main thread only.
class ApplicationObject final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// See ProgramInstance::setRequestHandler.
    [[nodiscard]] core::Registration setRequestHandler(ProgramInstance::Handler handler);

    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    /// The program has no documents: the same as Activate.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    /// An unknown action is answered with an error.
    Q_SCRIPTABLE void ActivateAction(const QString& name, const QVariantList& parameter,
                                     const QVariantMap& platformData);

private:
    void accept(InstanceRequest::Kind kind, const QVariantMap& platformData);
    void deliver();

    ProgramInstance::Handler handler_;
    std::deque<InstanceRequest> undelivered_;
};

/// The platform data of a call, and back.
QVariantMap platformData(const ActivationToken& token);
ActivationToken activationToken(const QVariantMap& platformData);

} // namespace platform
