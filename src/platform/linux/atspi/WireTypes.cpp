#include "platform/linux/atspi/WireTypes.h"

#include "platform/linux/atspi/ObjectReference.h"

#include <QDBusMetaType>
#include <QMap>
#include <QStringList>

namespace platform {

namespace {

enum class MatchType : int { All = 1, Any = 2 };

QDBusArgument& operator<<(QDBusArgument& argument, MatchType type) {
    return argument << static_cast<int>(type);
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const Extents& extents) {
    argument.beginStructure();
    argument << extents.x << extents.y << extents.width << extents.height;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Extents& extents) {
    argument.beginStructure();
    argument >> extents.x >> extents.y >> extents.width >> extents.height;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MatchRule& rule) {
    const auto state = static_cast<int>(rule.state);
    QList<int> states{0, 0};
    states[state / 32] = static_cast<int>(1U << (state % 32));
    const bool inverted = false;

    argument.beginStructure();
    argument << states << MatchType::All;
    argument << QMap<QString, QString>() << MatchType::Any;
    argument << QList<int>{0, 0, 0, 0} << MatchType::Any; // roles
    argument << QStringList() << MatchType::All;          // interfaces
    argument << inverted;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MatchRule& rule) {
    QList<int> states;
    QMap<QString, QString> attributes;
    QList<int> roles;
    QStringList interfaces;
    int matchType = 0;
    bool inverted = false;

    argument.beginStructure();
    argument >> states >> matchType >> attributes >> matchType >> roles >> matchType >>
        interfaces >> matchType >> inverted;
    argument.endStructure();
    for (int state = 0; state < 64 && state / 32 < states.size(); ++state) {
        if (((static_cast<unsigned>(states[state / 32]) >> (state % 32)) & 1U) != 0) {
            rule.state = static_cast<State>(state);
        }
    }
    return argument;
}

void registerWireTypes() {
    qDBusRegisterMetaType<ObjectReference>();
    qDBusRegisterMetaType<QList<ObjectReference>>();
    qDBusRegisterMetaType<Extents>();
    qDBusRegisterMetaType<QMap<QString, QString>>();
    qDBusRegisterMetaType<MatchRule>();
}

} // namespace platform
