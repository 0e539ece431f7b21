#include "platform/linux/atspi/FocusFinder.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::size_t mostObjectsOfAWalk = 1000;
constexpr int mostChildrenOfAnObject = 200;

/// Rows and cells come into being by being asked for, and menus are many; none of them holds a text
/// that the keyboard is in without telling so by an event.
bool isWorthEntering(unsigned role, const StateSet& states, int childCount) {
    switch (static_cast<Role>(role)) {
    case Role::List:
    case Role::Menu:
    case Role::MenuBar:
    case Role::Table:
    case Role::Tree:
    case Role::TreeTable:
        return false;
    case Role::PasswordText:
    case Role::RootPane:
    case Role::Paragraph:
    case Role::Heading:
    case Role::Application:
    case Role::Static:
        break;
    }
    return childCount > 0 && childCount <= mostChildrenOfAnObject &&
           !states.has(State::ManagesDescendants);
}

StateSet statesIn(const QDBusMessage& reply) {
    return StateSet(Inquiry::decode<QList<unsigned>>(reply).value_or(QList<unsigned>()));
}

int rank(const FocusedObject& object) {
    return (object.hasText ? 2 : 0) + (object.hasText && object.isEditable ? 1 : 0);
}

} // namespace

void FocusFinder::forget(const QString& service) {
    withoutCollection_.remove(service);
    tooLargeToWalk_.remove(service);
    lastFound_.remove(service);
}

std::optional<FocusedObject>
FocusFinder::find(const QString& service, const ObjectReference& lastFocused, Inquiry& inquiry) {
    auto found = withoutCollection_.contains(service) ? std::nullopt : search(service, inquiry);
    if (!found) {
        found = best({lastFocused, lastFound_.value(service)}, inquiry);
    }
    if (!found && withoutCollection_.contains(service) && !tooLargeToWalk_.contains(service)) {
        found = walk(service, inquiry);
    }
    if (found) {
        lastFound_.insert(service, found->object);
    }
    return found;
}

std::vector<ObjectReference> FocusFinder::activeWindows(const QString& service, Inquiry& inquiry) {
    const auto windows =
        inquiry.ask<QList<ObjectReference>>(requests::children(ObjectReference::root(service)))
            .value_or(QList<ObjectReference>());
    std::vector<Request> questions;
    for (const auto& window : windows) {
        if (!window.isNull()) {
            questions.push_back(requests::states(window));
        }
    }
    const auto replies = inquiry.askAll(questions);
    std::vector<ObjectReference> active;
    for (std::size_t index = 0; index < replies.size(); ++index) {
        if (statesIn(replies[index]).has(State::Active)) {
            active.push_back(questions[index].object);
        }
    }
    return active;
}

std::optional<FocusedObject> FocusFinder::search(const QString& service, Inquiry& inquiry) {
    for (const auto& window : activeWindows(service, inquiry)) {
        const auto replies =
            inquiry.askAll({requests::states(window), requests::focusedDescendants(window)});
        const auto hits = Inquiry::decode<QList<ObjectReference>>(replies[1]);
        if (!hits) {
            // A window that closed in between says nothing of the application. One that is there
            // and does not search never will, whatever it calls the reason.
            if (!inquiry.ranOut() && statesIn(replies[0]).has(State::Active)) {
                withoutCollection_.insert(service);
            }
            return std::nullopt;
        }
        if (auto found = best({hits->begin(), hits->end()}, inquiry)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<FocusedObject> FocusFinder::best(const std::vector<ObjectReference>& objects,
                                               Inquiry& inquiry) {
    constexpr std::size_t questionsEach = 3;
    std::vector<Request> questions;
    for (const auto& object : objects) {
        if (!object.isNull()) {
            questions.push_back(requests::states(object));
            questions.push_back(requests::role(object));
            questions.push_back(requests::interfaces(object));
        }
    }
    const auto replies = inquiry.askAll(questions);
    std::optional<FocusedObject> best;
    for (std::size_t index = 0; index + questionsEach <= replies.size(); index += questionsEach) {
        const auto states = statesIn(replies[index]);
        const auto role = Inquiry::decode<unsigned>(replies[index + 1]);
        const auto interfaces = Inquiry::decode<QStringList>(replies[index + 2]);
        if (!states.has(State::Focused) || !role || !interfaces) {
            continue;
        }
        const FocusedObject candidate{questions[index].object, *role,
                                      interfaces->contains(u"org.a11y.atspi.Text"),
                                      states.has(State::Editable)};
        if (!best || rank(candidate) > rank(*best)) {
            best = candidate;
        }
    }
    return best;
}

std::optional<FocusedObject> FocusFinder::walk(const QString& service, Inquiry& inquiry) {
    constexpr std::size_t questionsEach = 3;
    std::optional<FocusedObject> container;
    std::vector<ObjectReference> level = activeWindows(service, inquiry);
    std::size_t seen = 0;
    while (!level.empty() && !inquiry.ranOut()) {
        seen += level.size();
        if (seen > mostObjectsOfAWalk) {
            tooLargeToWalk_.insert(service);
            break;
        }
        std::vector<Request> questions;
        for (const auto& object : level) {
            questions.push_back(requests::states(object));
            questions.push_back(requests::role(object));
            questions.push_back(requests::childCount(object));
        }
        const auto replies = inquiry.askAll(questions);
        std::vector<ObjectReference> focused;
        std::vector<Request> toEnter;
        for (std::size_t index = 0; index < level.size(); ++index) {
            const auto first = index * questionsEach;
            const auto states = statesIn(replies[first]);
            if (states.has(State::Focused)) {
                focused.push_back(level[index]);
            }
            if (isWorthEntering(Inquiry::decode<unsigned>(replies[first + 1]).value_or(0), states,
                                Inquiry::decode<int>(replies[first + 2]).value_or(0))) {
                toEnter.push_back(requests::children(level[index]));
            }
        }
        if (auto found = best(focused, inquiry)) {
            if (found->hasText) {
                return found;
            }
            container = found;
        }
        level.clear();
        for (const auto& reply : inquiry.askAll(toEnter)) {
            const auto children =
                Inquiry::decode<QList<ObjectReference>>(reply).value_or(QList<ObjectReference>());
            std::copy_if(children.begin(), children.end(), std::back_inserter(level),
                         [](const ObjectReference& child) { return !child.isNull(); });
        }
    }
    return container;
}

} // namespace platform
