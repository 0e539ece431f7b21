#include "ConfigFolder.h"
#include "platform/linux/freedesktop/JsonUserDefaults.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <csignal>
#include <poll.h>
#include <random>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

using platform::DefaultsValue;
using platform::JsonUserDefaults;

namespace {

const auto key = QStringLiteral("key");

/// Too long for one page, so that a half-written file would be seen.
QStringList contents(QChar letter) {
    return {QString(20'000, letter), QString(20'000, letter)};
}

/// A process that keeps assigning and says through the pipe when it has begun.
[[noreturn]] void writeForever(const QString& path, int started) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    JsonUserDefaults defaults(path);
    defaults.set(key, contents(u'a'));
    if (::write(started, "x", 1) != 1) {
        ::_exit(1);
    }
    for (;;) {
        defaults.set(key, contents(u'b'));
        defaults.set(key, contents(u'a'));
    }
}

} // namespace

TEST(JsonUserDefaultsKilled, LeavesTheOldOrTheNewFileWhole) {
    const fakes::ConfigFolder folder;
    const QString path = folder.path(QStringLiteral("settings.json"));
    std::mt19937 random(1);
    std::uniform_int_distribution<useconds_t> moment(0, 5000);
    for (int round = 0; round < 25; ++round) {
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = ::fork();
        ASSERT_NE(child, -1);
        if (child == 0) {
            writeForever(path, pipe[1]);
        }
        pollfd started{pipe[0], POLLIN, 0};
        ASSERT_EQ(::poll(&started, 1, 5000), 1);
        // The moment of the kill is what varies; nothing is waited for.
        ::usleep(moment(random));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself";
        ::close(pipe[0]);
        ::close(pipe[1]);

        const auto stored = JsonUserDefaults(path).object(key);
        ASSERT_TRUE(stored == DefaultsValue(contents(u'a')) ||
                    stored == DefaultsValue(contents(u'b')))
            << "round " << round;
    }
}
