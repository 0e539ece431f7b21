#include "core/NotificationCenter.h"

namespace core {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

Registration NotificationCenter::addObserver(const QString& name, std::function<void()> handler) {
    return observers_[name].add(std::move(handler));
}

void NotificationCenter::post(const QString& name) {
    if (const auto found = observers_.find(name); found != observers_.end()) {
        found->second.notify();
    }
}

} // namespace core
