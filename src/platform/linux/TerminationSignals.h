#pragma once

#include <QSocketNotifier>

namespace platform {

/// Lets SIGTERM, SIGINT and SIGHUP end the program the way its Quit entry does. A second signal of
/// the same kind ends it at once. At most one object of this class exists; needs the application
/// object.
class TerminationSignals {
public:
    TerminationSignals();
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    int readEnd_ = -1;
    QSocketNotifier notifier_;
};

} // namespace platform
