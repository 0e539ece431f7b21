#include "platform/linux/atspi/EventListener.h"

#include "platform/linux/atspi/Request.h"

namespace platform {

namespace {

const auto objectEvents = QStringLiteral("org.a11y.atspi.Event.Object");
const auto windowEvents = QStringLiteral("org.a11y.atspi.Event.Window");
const auto registryService = QStringLiteral("org.a11y.atspi.Registry");
const auto busService = QStringLiteral("org.freedesktop.DBus");

} // namespace

EventListener::EventListener(AccessibilityBus& bus)
    : bus_(bus) {
    connect(&bus_, &AccessibilityBus::connected, this, &EventListener::subscribe);
    if (bus_.isConnected()) {
        subscribe();
    }
}

void EventListener::subscribe() {
    lastFocused_.clear();
    followed_.clear();
    auto connection = bus_.connection();
    // Without the match on the argument, each button under the pointer would be heard.
    connection.connect(QString(), QString(), objectEvents, QStringLiteral("StateChanged"),
                       {QStringLiteral("focused")}, QString(), this,
                       SLOT(heardFocus(QDBusMessage)));
    for (const auto& name : {QStringLiteral("Activate"), QStringLiteral("Deactivate")}) {
        connection.connect(QString(), QString(), windowEvents, name, this,
                           SLOT(heardWindow(QDBusMessage)));
    }
    connection.connect(busService, QStringLiteral("/org/freedesktop/DBus"), busService,
                       QStringLiteral("NameOwnerChanged"), this,
                       SLOT(heardNameOwner(QString, QString, QString)));
    registerEvents();
}

/// Applications tell only what somebody has registered for.
void EventListener::registerEvents() {
    for (const auto& event :
         {QStringLiteral("object:state-changed:focused"), QStringLiteral("object:text-caret-moved"),
          QStringLiteral("object:text-selection-changed"), QStringLiteral("object:text-changed"),
          QStringLiteral("window:activate"), QStringLiteral("window:deactivate")}) {
        auto message = QDBusMessage::createMethodCall(
            registryService, QStringLiteral("/org/a11y/atspi/registry"), registryService,
            QStringLiteral("RegisterEvent"));
        message.setArguments({event});
        bus_.connection().send(message);
    }
}

void EventListener::follow(const QString& service) {
    if (service == followed_) {
        return;
    }
    if (!followed_.isEmpty()) {
        subscribeToTextEvents(followed_, false);
    }
    followed_ = service;
    if (!followed_.isEmpty()) {
        subscribeToTextEvents(followed_, true);
    }
}

void EventListener::subscribeToTextEvents(const QString& service, bool on) {
    auto connection = bus_.connection();
    for (const auto& name :
         {QStringLiteral("TextCaretMoved"), QStringLiteral("TextSelectionChanged"),
          QStringLiteral("TextChanged")}) {
        if (on) {
            connection.connect(service, QString(), objectEvents, name, this,
                               SLOT(heardText(QDBusMessage)));
        } else {
            connection.disconnect(service, QString(), objectEvents, name, this,
                                  SLOT(heardText(QDBusMessage)));
        }
    }
}

void EventListener::heardFocus(const QDBusMessage& message) {
    const auto arguments = message.arguments();
    const bool gained = arguments.size() > 1 &&
                        arguments.at(1).metaType() == QMetaType::fromType<int>() &&
                        arguments.at(1).toInt() != 0;
    if (gained) {
        lastFocused_.insert(message.service(), {message.service(), message.path()});
    }
    Q_EMIT focusChanged(message.service());
}

void EventListener::heardWindow(const QDBusMessage& message) {
    Q_EMIT focusChanged(message.service());
}

void EventListener::heardText(const QDBusMessage& message) {
    Q_EMIT textChanged(message.service());
}

void EventListener::heardNameOwner(const QString& name, const QString& oldOwner,
                                   const QString& newOwner) {
    if (name == registryService && !newOwner.isEmpty()) {
        registerEvents();
    }
    if (!oldOwner.isEmpty()) {
        lastFocused_.remove(oldOwner);
    }
    Q_EMIT applicationsChanged(name);
}

} // namespace platform
