#pragma once

#include "platform/linux/atspi/FakeObject.h"
#include "platform/linux/atspi/ObjectReference.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QMutex>

#include <atomic>

namespace fakes {

/// An application on the accessibility bus, made of a table of objects. It answers in the thread
/// of the server; everything else is called by the test.
class FakeApplication final : public QDBusVirtualObject {
public:
    FakeApplication(const QString& address, QThread& server);
    ~FakeApplication() override;

    QString service() const { return connection_.baseService(); }
    platform::ObjectReference reference(const QString& path) const { return {service(), path}; }

    /// Replaces an object; a path of "root" stands for the application's own object.
    void set(const QString& path, const FakeObject& object);
    void removeObject(const QString& path);
    /// What a search for the focused object finds; without this call there is no search.
    void answerSearch(const QList<QString>& paths);

    void sendEvent(const QString& path, const QString& interface, const QString& name,
                   const QString& detail = QString(), int value = 0);
    void send(const QDBusMessage& message) { connection_.send(message); }
    /// Leaves the bus.
    void quit();

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    std::optional<QVariantList> answer(const FakeObject& object, const QDBusMessage& message) const;
    QVariant references(const QList<QString>& paths) const;

    QDBusConnection connection_;
    mutable QMutex mutex_;
    QMap<QString, FakeObject> objects_;
    std::optional<QList<QString>> searchAnswer_;
};

} // namespace fakes
