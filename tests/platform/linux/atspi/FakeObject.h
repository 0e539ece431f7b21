#pragma once

#include "platform/linux/atspi/WireTypes.h"

#include <QMap>
#include <QString>
#include <QVariantList>

#include <utility>
#include <vector>

namespace fakes {

/// What an object does instead of giving its own answer to a question.
struct Misbehaviour {
    enum class Kind { Silent, Error, Answer };
    Kind kind = Kind::Silent;
    QVariantList answer;
};

/// One object of a fake application: values that the questions are answered from.
struct FakeObject {
    unsigned role = 61;
    std::vector<platform::State> states;
    bool hasText = true;
    QString parent;
    QList<QString> children;
    QString text;
    std::vector<std::pair<int, int>> selections;
    platform::Extents extents;
    /// Of each range, by its first and last offset.
    QMap<std::pair<int, int>, platform::Extents> ranges;
    /// By the name of the question.
    QMap<QString, Misbehaviour> misbehaviours;
};

} // namespace fakes
