#include "platform/qt/InstanceRequestQueue.h"

#include <utility>

namespace platform {

core::Registration InstanceRequestQueue::setRequestHandler(ProgramInstance::Handler handler) {
    handler_ = std::move(handler);
    deliver();
    return core::Registration([this] { handler_ = nullptr; });
}

void InstanceRequestQueue::accept(InstanceRequest request) {
    undelivered_.push_back(std::move(request));
    deliver();
}

void InstanceRequestQueue::deliver() {
    // Later, so that the caller has its answer first, however long the handler takes.
    QMetaObject::invokeMethod(
        &context_,
        [this] {
            while (handler_ && !undelivered_.empty()) {
                const InstanceRequest request = undelivered_.front();
                undelivered_.pop_front();
                // A copy: the handler may end its own registration.
                const auto handler = handler_;
                handler(request);
            }
        },
        Qt::QueuedConnection);
}

} // namespace platform
