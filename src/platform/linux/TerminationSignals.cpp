#include "platform/linux/TerminationSignals.h"

#include "core/Fatal.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace platform {

namespace {

/// All that a signal handler may touch.
volatile std::sig_atomic_t writeEnd = -1;

void wakeMainThread(int) {
    const int interrupted = errno;
    const std::uint64_t once = 1;
    [[maybe_unused]] const auto written = write(writeEnd, &once, sizeof once);
    errno = interrupted;
}

void install(void (*handler)(int), int flags) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
    struct sigaction inherited {};
    sigaction(SIGHUP, nullptr, &inherited);
    // Whoever starts a program with nohup wants it to outlive the terminal.
    if (inherited.sa_handler != SIG_IGN) {
        sigaction(SIGHUP, &action, nullptr);
    }
}

int makeEventDescriptor() {
    const int descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (descriptor < 0) {
        core::fatal(u"no event descriptor for the signals that end the program");
    }
    return descriptor;
}

} // namespace

TerminationSignals::TerminationSignals()
    : readEnd_(makeEventDescriptor())
    , notifier_(readEnd_, QSocketNotifier::Read) {
    writeEnd = readEnd_;
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
        notifier_.setEnabled(false);
        QCoreApplication::quit();
    });
    install(wakeMainThread, SA_RESTART | static_cast<int>(SA_RESETHAND));
}

TerminationSignals::~TerminationSignals() {
    install(SIG_DFL, 0);
    close(readEnd_);
}

} // namespace platform
