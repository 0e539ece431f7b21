#include "platform/linux/x11/ConnectionKeeper.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace platform {

namespace {

/// The life of the second process. Nothing that allocates or locks: the threads that would unlock
/// do not exist in it.
[[noreturn]] void keep(int socket, int word) {
    constexpr int keptWord = 3;
    constexpr int keptSocket = 4;
    // Moved out of the way first, since either may have the number of the other's place.
    word = fcntl(word, F_DUPFD, keptSocket + 1);
    socket = fcntl(socket, F_DUPFD, keptSocket + 1);
    dup2(word, keptWord);
    dup2(socket, keptSocket);
    // The program's other connections are to close with the program, and so is the writing end.
    close_range(keptSocket + 1, ~0U, 0);

    std::array<char, 4096> bytes{};
    if (read(keptWord, bytes.data(), 1) == 1) {
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
    word_ = ends[1];
}

ConnectionKeeper::~ConnectionKeeper() {
    if (word_ < 0) {
        return;
    }
    const char done = 1;
    [[maybe_unused]] const auto written = write(word_, &done, 1);
    close(word_);
    if (keeper_ > 0) {
        waitpid(keeper_, nullptr, 0);
    }
}

} // namespace platform
