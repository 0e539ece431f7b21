#include "platform/linux/atspi/ApplicationDirectory.h"

namespace platform {

std::optional<QString> ApplicationDirectory::serviceOf(ProcessIdentifier process,
                                                       Inquiry& inquiry) {
    if (const auto known = find(process)) {
        return known;
    }
    learn(inquiry);
    return find(process);
}

std::optional<ProcessIdentifier> ApplicationDirectory::forget(const QString& service) {
    const auto known = processes_.constFind(service);
    if (known == processes_.cend()) {
        return std::nullopt;
    }
    const ProcessIdentifier process = *known;
    processes_.erase(known);
    return process;
}

void ApplicationDirectory::learn(Inquiry& inquiry) {
    const auto applications = inquiry.ask<QList<ObjectReference>>(
        requests::children(ObjectReference::root(QStringLiteral("org.a11y.atspi.Registry"))));
    if (!applications) {
        return;
    }
    std::vector<Request> questions;
    for (const auto& application : *applications) {
        if (!application.isNull() && !processes_.contains(application.service)) {
            questions.push_back(requests::processOf(application.service));
        }
    }
    const auto replies = inquiry.askAll(questions);
    for (std::size_t index = 0; index < replies.size(); ++index) {
        if (const auto process = Inquiry::decode<unsigned>(replies[index])) {
            processes_.insert(questions[index].arguments.first().toString(), *process);
        }
    }
}

std::optional<QString> ApplicationDirectory::find(ProcessIdentifier process) const {
    const QString service = processes_.key(process);
    return service.isEmpty() ? std::nullopt : std::optional(service);
}

} // namespace platform
