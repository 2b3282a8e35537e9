#include "KarvelloMac/TerminationSignals.h"
#include "PlatformDesktop/DetachedProgram.h"
#include "Tests/Support/TemporaryTree.h"

#include <QTest>
#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace KarvelloMac {

namespace {

bool isBlocked(int signal)
{
    sigset_t blocked;
    ::pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    return sigismember(&blocked, signal) == 1;
}

/// The line of the kernel's account of a process (proc(5)) that lists the signals it blocks.
std::string blockedSignalsIn(const std::string& path)
{
    std::ifstream account(path);
    for (std::string line; std::getline(account, line);) {
        if (line.starts_with("SigBlk:")) {
            return line;
        }
    }
    return {};
}

} // namespace

TEST(TerminationSignals, AreToldInsteadOfEndingTheProcess)
{
    int requests = 0;
    {
        TerminationSignals signals;
        signals.watch([&requests] { ++requests; });
        ::raise(SIGTERM);
        EXPECT_TRUE(QTest::qWaitFor([&requests] { return requests == 1; }));
        EXPECT_TRUE(isBlocked(SIGHUP));
    }
    EXPECT_FALSE(isBlocked(SIGTERM));
    EXPECT_FALSE(isBlocked(SIGHUP));
}

TEST(TerminationSignals, EndTheProcessOnceTheyAreReleased)
{
    TerminationSignals signals;
    signals.release();
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        EXPECT_FALSE(isBlocked(signal)) << signal;
    }
}

TEST(TerminationSignals, ReachProgramsThatAreStartedMeanwhile)
{
    const TestSupport::TemporaryTree tree;
    const std::string account = tree.path("status");
    const TerminationSignals signals;
    ASSERT_TRUE(PlatformDesktop::DetachedProgram::start({"/bin/cp", "/proc/self/status", account}, {}));
    EXPECT_TRUE(QTest::qWaitFor([&account] { return !blockedSignalsIn(account).empty(); }));
    EXPECT_EQ(blockedSignalsIn(account), "SigBlk:\t0000000000000000");
}

} // namespace KarvelloMac
