#pragma once

#include "core/Registration.h"
#include "platform/ProgramInstance.h"
#include "platform/qt/InstanceRequestQueue.h"

#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

#include <optional>

namespace platform {

/// The program as others on the bus see it: an application that can be activated and has the
/// actions "settings", "feedback" and "quit". Main thread only.
class ApplicationObject final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// See ProgramInstance::setRequestHandler.
    [[nodiscard]] core::Registration setRequestHandler(ProgramInstance::Handler handler);

    /// Hands a request to the handler from the event loop, or keeps it for the next handler.
    void accept(InstanceRequest request);

    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    /// The program has no documents: the same as Activate.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    /// An unknown action is answered with an error.
    Q_SCRIPTABLE void ActivateAction(const QString& name, const QVariantList& parameter,
                                     const QVariantMap& platformData);

private:
    InstanceRequestQueue requests_;
};

/// The name by which the desktop asks for it; none for a plain activation.
std::optional<QString> actionName(InstanceRequest::Kind kind);

/// The platform data of a call, and back.
QVariantMap platformData(const ActivationToken& token);
ActivationToken activationToken(const QVariantMap& platformData);

} // namespace platform
