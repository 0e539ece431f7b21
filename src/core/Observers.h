#pragma once

#include "core/Registration.h"

#include <functional>
#include <list>
#include <memory>
#include <utility>

namespace core {

/// The handlers of one kind of event, called in the order in which they were added. A handler may
/// add or remove handlers, itself included, while it is being called.
template <typename... Arguments>
class Observers {
public:
    using Handler = std::function<void(Arguments...)>;

    [[nodiscard]] Registration add(Handler handler) {
        auto entry = std::make_shared<Handler>(std::move(handler));
        handlers_->push_back(entry);
        return Registration([list = std::weak_ptr(handlers_), entry] {
            *entry = nullptr;
            if (auto handlers = list.lock()) {
                handlers->remove(entry);
            }
        });
    }

    void notify(Arguments... arguments) const {
        const auto snapshot = *handlers_;
        for (const auto& handler : snapshot) {
            // Copied, so that a handler may end its own registration while it runs.
            if (const auto call = *handler) {
                call(arguments...);
            }
        }
    }

private:
    using List = std::list<std::shared_ptr<Handler>>;
    std::shared_ptr<List> handlers_ = std::make_shared<List>();
};

} // namespace core
