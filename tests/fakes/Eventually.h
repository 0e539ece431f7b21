#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <functional>

namespace fakes {

/// Lets the program handle events until it is so; false when it is not within 10 s.
inline bool eventually(const std::function<bool()>& condition) {
    QTimer wakeUp;
    wakeUp.start(5);
    const QDeadlineTimer limit(10'000);
    while (!condition()) {
        if (limit.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace fakes
