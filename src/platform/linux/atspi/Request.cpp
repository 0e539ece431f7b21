#include "platform/linux/atspi/Request.h"

#include "platform/linux/atspi/WireTypes.h"

namespace platform {

namespace {

const auto accessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");
const auto textInterface = QStringLiteral("org.a11y.atspi.Text");
const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

Request property(const ObjectReference& object, const QString& name) {
    return {object, propertiesInterface, QStringLiteral("Get"), {accessibleInterface, name}};
}

} // namespace

QDBusMessage Request::message() const {
    auto message = QDBusMessage::createMethodCall(object.service, object.path, interface, member);
    message.setArguments(arguments);
    // Asking must not start programs.
    message.setAutoStartService(false);
    return message;
}

namespace requests {

Request role(const ObjectReference& object) {
    return {object, accessibleInterface, QStringLiteral("GetRole"), {}};
}

Request states(const ObjectReference& object) {
    return {object, accessibleInterface, QStringLiteral("GetState"), {}};
}

Request interfaces(const ObjectReference& object) {
    return {object, accessibleInterface, QStringLiteral("GetInterfaces"), {}};
}

Request children(const ObjectReference& object) {
    return {object, accessibleInterface, QStringLiteral("GetChildren"), {}};
}

Request childCount(const ObjectReference& object) {
    return property(object, QStringLiteral("ChildCount"));
}

Request parent(const ObjectReference& object) {
    return property(object, QStringLiteral("Parent"));
}

Request focusedDescendants(const ObjectReference& object) {
    constexpr unsigned canonicalOrder = 1;
    constexpr int count = 16;
    constexpr bool traverse = true;
    return {object,
            QStringLiteral("org.a11y.atspi.Collection"),
            QStringLiteral("GetMatches"),
            {QVariant::fromValue(MatchRule{State::Focused}), canonicalOrder, count, traverse}};
}

Request selectionCount(const ObjectReference& object) {
    return {object, textInterface, QStringLiteral("GetNSelections"), {}};
}

Request selection(const ObjectReference& object, int index) {
    return {object, textInterface, QStringLiteral("GetSelection"), {index}};
}

Request text(const ObjectReference& object, int start, int end) {
    return {object, textInterface, QStringLiteral("GetText"), {start, end}};
}

Request rangeExtents(const ObjectReference& object, int start, int end, Coordinates relativeTo) {
    return {object,
            textInterface,
            QStringLiteral("GetRangeExtents"),
            {start, end, static_cast<unsigned>(relativeTo)}};
}

Request characterExtents(const ObjectReference& object, int offset, Coordinates relativeTo) {
    return {object,
            textInterface,
            QStringLiteral("GetCharacterExtents"),
            {offset, static_cast<unsigned>(relativeTo)}};
}

Request extents(const ObjectReference& object, Coordinates relativeTo) {
    return {object,
            QStringLiteral("org.a11y.atspi.Component"),
            QStringLiteral("GetExtents"),
            {static_cast<unsigned>(relativeTo)}};
}

Request processOf(const QString& service) {
    return {{QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus")},
            QStringLiteral("org.freedesktop.DBus"),
            QStringLiteral("GetConnectionUnixProcessID"),
            {service}};
}

} // namespace requests

} // namespace platform
