#pragma once

#include "platform/linux/atspi/AccessibilityBus.h"
#include "platform/linux/atspi/ObjectReference.h"

#include <QDBusMessage>
#include <QHash>
#include <QObject>

namespace platform {

/// Hears what applications tell of themselves: only that something must be read again, never what.
class EventListener final : public QObject {
    Q_OBJECT

public:
    explicit EventListener(AccessibilityBus& bus);

    /// The object of an application's last focus event; null when there was none.
    ObjectReference lastFocused(const QString& service) const {
        return lastFocused_.value(service);
    }

    /// Hears text events of this application alone: others may type as much as they like.
    void follow(const QString& service);

Q_SIGNALS:
    void focusChanged(const QString& service);
    void textChanged(const QString& service);
    /// An application came, went, or was replaced.
    void applicationsChanged(const QString& service);

private Q_SLOTS:
    void heardFocus(const QDBusMessage& message);
    void heardWindow(const QDBusMessage& message);
    void heardText(const QDBusMessage& message);
    void heardNameOwner(const QString& name, const QString& oldOwner, const QString& newOwner);

private:
    void subscribe();
    void subscribeToTextEvents(const QString& service, bool on);
    void registerEvents();

    AccessibilityBus& bus_;
    QHash<QString, ObjectReference> lastFocused_;
    QString followed_;
};

} // namespace platform
