#pragma once

#include "platform/linux/atspi/Inquiry.h"
#include "platform/linux/atspi/WireTypes.h"

#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

namespace platform {

/// The object of an application that has the keyboard, and what was found out on the way.
struct FocusedObject {
    ObjectReference object;
    unsigned role = 0;
    bool hasText = false;
    bool isEditable = false;
};

/// Finds the focused object of an application, whichever of the three ways its toolkit supports.
class FocusFinder {
public:
    /// `lastFocused` is the object of the last focus event, the answer of toolkits that cannot
    /// search; null when there was none.
    std::optional<FocusedObject> find(const QString& service, const ObjectReference& lastFocused,
                                      Inquiry& inquiry);

    void forget(const QString& service);

private:
    static std::vector<ObjectReference> activeWindows(const QString& service, Inquiry& inquiry);
    std::optional<FocusedObject> search(const QString& service, Inquiry& inquiry);
    std::optional<FocusedObject> walk(const QString& service, Inquiry& inquiry);
    /// The one of these that has the keyboard, a text rather than what contains it.
    static std::optional<FocusedObject> best(const std::vector<ObjectReference>& objects,
                                             Inquiry& inquiry);

    /// Applications that answered that they cannot search.
    QSet<QString> withoutCollection_;
    /// Applications in which a walk came to its limit; a focus event must show the way there.
    QSet<QString> tooLargeToWalk_;
    /// A good guess where there are no focus events.
    QHash<QString, ObjectReference> lastFound_;
};

} // namespace platform
