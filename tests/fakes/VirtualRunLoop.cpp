#include "fakes/VirtualRunLoop.h"

#include <algorithm>

namespace fakes {

void VirtualRunLoop::advance(double seconds) {
    // Sums of tenths are off by a few units in the last place; an event belongs to its moment.
    constexpr double tolerance = 1e-9;
    const double target = now_ + seconds;
    while (!queue_->empty() && queue_->begin()->first <= target + tolerance) {
        const auto first = queue_->begin();
        const auto entry = first->second;
        now_ = std::max(now_, first->first);
        const double due = first->first;
        queue_->erase(first);
        if (entry->interval > 0) {
            queue_->emplace(due + entry->interval, entry);
        }
        const bool rests = entry->mode == platform::RunLoopMode::Default && openMenus_ > 0;
        if (!rests) {
            const auto handler = entry->handler;
            handler();
        }
    }
    now_ = std::max(now_, target);
}

void VirtualRunLoop::finishBackgroundWork() {
    auto pending = std::move(background_);
    background_.clear();
    for (auto& [work, completion] : pending) {
        work();
        completion();
    }
}

core::Registration VirtualRunLoop::add(double delay, Entry entry) {
    auto shared = std::make_shared<Entry>(std::move(entry));
    queue_->emplace(now_ + delay, shared);
    return core::Registration([queue = queue_, shared] {
        std::erase_if(*queue, [&](const auto& item) { return item.second == shared; });
    });
}

core::Registration VirtualRunLoop::scheduleRepeating(platform::Seconds interval,
                                                     platform::RunLoopMode mode,
                                                     std::function<void()> handler) {
    return add(interval.count(), {std::move(handler), interval.count(), mode});
}

core::Registration VirtualRunLoop::scheduleOnce(platform::Seconds delay, platform::RunLoopMode mode,
                                                std::function<void()> handler) {
    return add(delay.count(), {std::move(handler), 0, mode});
}

void VirtualRunLoop::dispatchAfter(platform::Seconds delay, std::function<void()> work) {
    queue_->emplace(now_ + delay.count(), std::make_shared<Entry>(Entry{
                                              std::move(work), 0, platform::RunLoopMode::Common}));
}

void VirtualRunLoop::dispatchInBackground(std::function<void()> work,
                                          std::function<void()> completion) {
    background_.emplace_back(std::move(work), std::move(completion));
}

void VirtualRunLoop::sleep(platform::Seconds duration) {
    sleeps.push_back(duration.count());
    now_ += duration.count();
    if (duringSleep) {
        duringSleep();
    }
}

} // namespace fakes
