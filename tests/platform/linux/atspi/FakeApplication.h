#pragma once

#include "platform/linux/Responder.h"
#include "platform/linux/atspi/FakeObject.h"
#include "platform/linux/atspi/ObjectReference.h"

#include <QMutex>

#include <optional>

namespace fakes {

/// An application on the accessibility bus, made of a table of objects.
class FakeApplication {
public:
    void join(const QDBusConnection& connection, QThread& server);

    platform::ObjectReference reference(const QString& path) const {
        return {connection_.baseService(), path};
    }

    /// Replaces an object; a path of "root" stands for the application's own object.
    void set(const QString& path, const FakeObject& object);
    void removeObject(const QString& path);
    /// What a search for the focused object finds; without this call there is no search.
    void answerSearch(const QStringList& paths);

    void sendEvent(const QString& path, const QString& interface, const QString& name,
                   const QString& detail = QString(), const QVariant& value = 0);

private:
    QDBusMessage answer(const QDBusMessage& call) const;
    QVariantList ownAnswer(const FakeObject& object, const QString& question,
                           const QVariantList& arguments) const;
    static QVariantList ofText(const FakeObject& object, const QString& question,
                               const QVariantList& arguments);
    QVariant references(const QStringList& paths) const;

    QDBusConnection connection_{QString()};
    mutable QMutex mutex_;
    QMap<QString, FakeObject> objects_;
    std::optional<QStringList> searchAnswer_;
    std::optional<Responder> responder_;
};

} // namespace fakes
