#include "platform/linux/atspi/FakeApplication.h"

#include <QDBusError>
#include <QDBusVariant>
#include <QMutexLocker>

namespace fakes {

namespace {

const auto root = QStringLiteral("/org/a11y/atspi/accessible/root");

QVariantList property(const QVariant& value) {
    return {QVariant::fromValue(QDBusVariant(value))};
}

QList<unsigned> stateBits(const std::vector<platform::State>& states) {
    QList<unsigned> words{0, 0};
    for (const auto state : states) {
        words[static_cast<int>(state) / 32] |= 1U << (static_cast<int>(state) % 32);
    }
    return words;
}

} // namespace

void FakeApplication::join(const QDBusConnection& connection, QThread& server) {
    connection_ = connection;
    responder_.emplace(
        connection, [this](const QDBusMessage& call) { return answer(call); }, &server);
}

void FakeApplication::set(const QString& path, const FakeObject& object) {
    const QMutexLocker locker(&mutex_);
    objects_.insert(path == u"root" ? root : path, object);
}

void FakeApplication::removeObject(const QString& path) {
    const QMutexLocker locker(&mutex_);
    objects_.remove(path);
}

void FakeApplication::answerSearch(const QStringList& paths) {
    const QMutexLocker locker(&mutex_);
    searchAnswer_ = paths;
}

void FakeApplication::sendEvent(const QString& path, const QString& interface, const QString& name,
                                const QString& detail, const QVariant& value) {
    auto event =
        QDBusMessage::createSignal(path, QStringLiteral("org.a11y.atspi.Event.") + interface, name);
    event.setArguments({detail, value, 0, QVariant::fromValue(QDBusVariant(0)), QVariantMap()});
    connection_.send(event);
}

QDBusMessage FakeApplication::answer(const QDBusMessage& call) const {
    const QMutexLocker locker(&mutex_);
    const auto object = objects_.constFind(call.path());
    if (object == objects_.cend()) {
        return call.createErrorReply(QDBusError::UnknownObject, QStringLiteral("gone"));
    }
    const QString question =
        call.member() == u"Get" ? call.arguments().at(1).toString() : call.member();
    if (const auto misbehaviour = object->misbehaviours.value(question)) {
        return misbehaviour(call);
    }
    if (object->knowsWindowOnly && question.endsWith(u"Extents") &&
        call.arguments().last().toUInt() == 0) {
        return call.createErrorReply(QDBusError::NotSupported, question);
    }
    const QVariantList values = ownAnswer(*object, question, call.arguments());
    // Some toolkits say of an object that is there, and has just answered, that it is not.
    return values.isEmpty() ? call.createErrorReply(QDBusError::UnknownObject, question)
                            : call.createReply(values);
}

/// Nothing for a question that the object does not understand.
QVariantList FakeApplication::ownAnswer(const FakeObject& object, const QString& question,
                                        const QVariantList& arguments) const {
    if (question == u"ChildCount") {
        return property(static_cast<int>(object.children.size()));
    }
    if (question == u"Parent") {
        return property(QVariant::fromValue(reference(object.parent)));
    }
    if (question == u"GetRole") {
        return {object.role};
    }
    if (question == u"GetState") {
        return {QVariant::fromValue(stateBits(object.states))};
    }
    if (question == u"GetInterfaces") {
        return {object.hasText ? QStringList{QStringLiteral("org.a11y.atspi.Text")}
                               : QStringList()};
    }
    if (question == u"GetChildren") {
        return {references(object.children)};
    }
    if (question == u"GetMatches" && searchAnswer_) {
        return {references(*searchAnswer_)};
    }
    if (question == u"GetExtents") {
        return {QVariant::fromValue(object.extents)};
    }
    return object.hasText ? ofText(object, question, arguments) : QVariantList();
}

QVariantList FakeApplication::ofText(const FakeObject& object, const QString& question,
                                     const QVariantList& arguments) {
    if (question == u"GetNSelections") {
        return {static_cast<int>(object.selections.size())};
    }
    const int first = arguments.value(0).toInt();
    const int second = arguments.value(1).toInt();
    if (question == u"GetSelection") {
        const auto [start, end] = object.selections.at(static_cast<std::size_t>(first));
        return {start, end};
    }
    if (question == u"GetText") {
        return {object.text.mid(first, second - first)};
    }
    if (question == u"GetRangeExtents") {
        const auto range = object.ranges.value({first, second});
        return {range.x, range.y, range.width, range.height};
    }
    if (question == u"GetCharacterExtents") {
        const auto character = object.characters.value(first);
        return {character.x, character.y, character.width, character.height};
    }
    return {};
}

QVariant FakeApplication::references(const QStringList& paths) const {
    QList<platform::ObjectReference> list;
    for (const auto& path : paths) {
        list.push_back(reference(path));
    }
    return QVariant::fromValue(list);
}

} // namespace fakes
