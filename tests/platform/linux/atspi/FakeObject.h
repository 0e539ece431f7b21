#pragma once

#include "platform/linux/atspi/WireTypes.h"

#include <QDBusMessage>
#include <QMap>
#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace fakes {

/// What an object does instead of giving its own answer to a question.
using Misbehaviour = std::function<QDBusMessage(const QDBusMessage&)>;

inline QDBusMessage silence(const QDBusMessage&) {
    return {};
}
inline QDBusMessage refusal(const QDBusMessage& question) {
    return question.createErrorReply(QDBusError::NotSupported, QStringLiteral("no"));
}
inline Misbehaviour answering(const QVariantList& values) {
    return [values](const QDBusMessage& question) { return question.createReply(values); };
}

/// One object of a fake application: values that the questions are answered from.
struct FakeObject {
    unsigned role = 61;
    std::vector<platform::State> states = {};
    bool hasText = true;
    QString parent = {};
    QStringList children = {};
    QString text = {};
    std::vector<std::pair<int, int>> selections = {};
    platform::Extents extents = {};
    /// Of each range, by its first and last offset.
    QMap<std::pair<int, int>, platform::Extents> ranges = {};
    QMap<int, platform::Extents> characters = {};
    /// Refuses to tell where anything is on the screen.
    bool knowsWindowOnly = false;
    /// By the name of the question.
    QMap<QString, Misbehaviour> misbehaviours = {};
};

} // namespace fakes
