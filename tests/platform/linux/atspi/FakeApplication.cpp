#include "platform/linux/atspi/FakeApplication.h"

#include <QDBusError>
#include <QDBusVariant>
#include <QMutexLocker>
#include <QThread>

namespace fakes {

namespace {

const auto root = QStringLiteral("/org/a11y/atspi/accessible/root");

QString connectionName() {
    static std::atomic<int> number = 0;
    return QStringLiteral("fake-application-%1").arg(++number);
}

QString pathOf(const QString& name) {
    return name == u"root" ? root : name;
}

} // namespace

FakeApplication::FakeApplication(const QString& address, QThread& server)
    : connection_(QDBusConnection::connectToBus(address, connectionName())) {
    platform::registerWireTypes();
    connection_.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
    moveToThread(&server);
}

FakeApplication::~FakeApplication() {
    quit();
}

void FakeApplication::quit() {
    connection_.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus(connection_.name());
    // The bus notices when the last reference goes.
    connection_ = QDBusConnection(QString());
}

void FakeApplication::set(const QString& path, const FakeObject& object) {
    const QMutexLocker locker(&mutex_);
    objects_.insert(pathOf(path), object);
}

void FakeApplication::removeObject(const QString& path) {
    const QMutexLocker locker(&mutex_);
    objects_.remove(path);
}

void FakeApplication::answerSearch(const QList<QString>& paths) {
    const QMutexLocker locker(&mutex_);
    searchAnswer_ = paths;
}

void FakeApplication::sendEvent(const QString& path, const QString& interface, const QString& name,
                                const QString& detail, int value) {
    auto event =
        QDBusMessage::createSignal(path, QStringLiteral("org.a11y.atspi.Event.") + interface, name);
    event.setArguments({detail, value, 0, QVariant::fromValue(QDBusVariant(0)), QVariantMap()});
    connection_.send(event);
}

bool FakeApplication::handleMessage(const QDBusMessage& message,
                                    const QDBusConnection& connection) {
    const QMutexLocker locker(&mutex_);
    const auto object = objects_.constFind(message.path());
    if (object == objects_.cend()) {
        return connection.send(
            message.createErrorReply(QDBusError::UnknownObject, QStringLiteral("gone")));
    }
    const auto question =
        message.member() == u"Get" ? message.arguments().at(1).toString() : message.member();
    if (const auto misbehaviour = object->misbehaviours.constFind(question);
        misbehaviour != object->misbehaviours.cend()) {
        switch (misbehaviour->kind) {
        case Misbehaviour::Kind::Silent:
            return true;
        case Misbehaviour::Kind::Error:
            return connection.send(
                message.createErrorReply(QDBusError::NotSupported, QStringLiteral("no")));
        case Misbehaviour::Kind::Answer:
            return connection.send(message.createReply(misbehaviour->answer));
        }
    }
    const auto reply = answer(*object, message);
    return connection.send(reply ? message.createReply(*reply)
                                 : message.createErrorReply(QDBusError::UnknownMethod, question));
}

std::optional<QVariantList> FakeApplication::answer(const FakeObject& object,
                                                    const QDBusMessage& message) const {
    const auto member = message.member();
    const auto arguments = message.arguments();
    if (member == u"Get") {
        const auto value = arguments.at(1).toString() == u"ChildCount"
                               ? QVariant(static_cast<int>(object.children.size()))
                               : QVariant::fromValue(reference(object.parent));
        return QVariantList{QVariant::fromValue(QDBusVariant(value))};
    }
    if (member == u"GetRole") {
        return QVariantList{object.role};
    }
    if (member == u"GetState") {
        QList<unsigned> words{0, 0};
        for (const auto state : object.states) {
            words[static_cast<int>(state) / 32] |= 1U << (static_cast<int>(state) % 32);
        }
        return QVariantList{QVariant::fromValue(words)};
    }
    if (member == u"GetInterfaces") {
        return QVariantList{object.hasText ? QStringList{QStringLiteral("org.a11y.atspi.Text")}
                                           : QStringList()};
    }
    if (member == u"GetChildren") {
        return QVariantList{references(object.children)};
    }
    if (member == u"GetMatches" && searchAnswer_) {
        return QVariantList{references(*searchAnswer_)};
    }
    if (member == u"GetExtents") {
        return QVariantList{QVariant::fromValue(object.extents)};
    }
    if (member == u"GetNSelections" && object.hasText) {
        return QVariantList{static_cast<int>(object.selections.size())};
    }
    if (member == u"GetSelection" && object.hasText) {
        const auto [start, end] = object.selections.at(arguments.at(0).toUInt());
        return QVariantList{start, end};
    }
    if (member == u"GetText" && object.hasText) {
        const int start = arguments.at(0).toInt();
        return QVariantList{object.text.mid(start, arguments.at(1).toInt() - start)};
    }
    if (member == u"GetRangeExtents" && object.hasText) {
        const auto range = object.ranges.value({arguments.at(0).toInt(), arguments.at(1).toInt()});
        return QVariantList{range.x, range.y, range.width, range.height};
    }
    return std::nullopt;
}

QVariant FakeApplication::references(const QList<QString>& paths) const {
    QList<platform::ObjectReference> list;
    for (const auto& path : paths) {
        list.push_back(reference(path));
    }
    return QVariant::fromValue(list);
}

} // namespace fakes
