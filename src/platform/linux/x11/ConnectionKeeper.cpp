#include "platform/linux/x11/ConnectionKeeper.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace platform {

namespace {

/// The life of the second process. Nothing that allocates or locks: the threads that would unlock
/// do not exist in it.
[[noreturn]] void keep(int socket, int lifeline) {
    constexpr int keptLifeline = 3;
    constexpr int keptSocket = 4;
    // Moved out of the way first, since either may have the number of the other's place.
    lifeline = fcntl(lifeline, F_DUPFD, keptSocket + 1);
    socket = fcntl(socket, F_DUPFD, keptSocket + 1);
    if (lifeline < 0 || socket < 0) {
        _exit(0);
    }
    dup2(lifeline, keptLifeline);
    dup2(socket, keptSocket);
    // The program's other connections are to close with the program, and so is the writing end.
    close_range(keptSocket + 1, ~0U, 0);

    std::array<char, 4096> bytes{};
    // Nothing is ever written: the end of the stream is the end of the program. Anything else must
    // leave the connection alone, since the program still uses it.
    ssize_t count = 0;
    do {
        count = read(keptLifeline, bytes.data(), 1);
    } while (count < 0 && errno == EINTR);
    if (count != 0) {
        _exit(0);
    }
    shutdown(keptSocket, SHUT_WR);
    constexpr int longest = 2000;
    pollfd readable{keptSocket, POLLIN, 0};
    while (poll(&readable, 1, longest) > 0 && read(keptSocket, bytes.data(), bytes.size()) > 0) {
    }
    _exit(0);
}

} // namespace

ConnectionKeeper::ConnectionKeeper(int socket) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return;
    }
    // What ends this program's whole group of processes is not to end the keeper.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    keeper_ = fork();
    if (keeper_ == 0) {
        keep(socket, ends[0]);
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    close(ends[0]);
    lifeline_ = ends[1];
}

ConnectionKeeper::~ConnectionKeeper() {
    if (keeper_ > 0) {
        // Ends it even if somebody stopped it.
        kill(keeper_, SIGKILL);
        waitpid(keeper_, nullptr, 0);
    }
    if (lifeline_ >= 0) {
        close(lifeline_);
    }
}

} // namespace platform
