#include "KarvelloCLI/Interruption.h"

#include <gtest/gtest.h>

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

using KarvelloCLI::Interruption;
using namespace std::chrono_literals;

namespace {

bool stopsWithin(const std::stop_token& token, std::chrono::milliseconds limit)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!token.stop_requested() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(1ms);
    }
    return token.stop_requested();
}

void noteNothing(int) {}

/// Runs `body` in a child of its own and gives its status, as waitpid(2) tells it.
template <typename Body>
int statusOfChild(Body body)
{
    const pid_t child = fork();
    if (child == 0) {
        body();
        _exit(99);
    }
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

} // namespace

TEST(Interruption, ASignalAsksForAStop)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        const Interruption interruption;
        EXPECT_FALSE(interruption.token().stop_requested());
        raise(signal);
        EXPECT_TRUE(stopsWithin(interruption.token(), 5s));
    }
}

TEST(Interruption, EndsWithoutASignal)
{
    const Interruption interruption;
    SUCCEED() << "the watching thread is joined";
}

TEST(Interruption, GivesTheSignalsBack)
{
    struct sigaction mine{};
    struct sigaction before{};
    mine.sa_handler = noteNothing;
    ASSERT_EQ(sigaction(SIGINT, &mine, &before), 0);
    {
        const Interruption interruption;
        struct sigaction during{};
        sigaction(SIGINT, nullptr, &during);
        EXPECT_NE(during.sa_handler, noteNothing);
    }
    struct sigaction after{};
    sigaction(SIGINT, &before, &after);
    EXPECT_EQ(after.sa_handler, noteNothing);
}

TEST(Interruption, AnIgnoredSignalStaysIgnored)
{
    struct sigaction ignore{};
    struct sigaction before{};
    ignore.sa_handler = SIG_IGN;
    ASSERT_EQ(sigaction(SIGINT, &ignore, &before), 0);
    {
        const Interruption interruption;
        raise(SIGINT);
        EXPECT_FALSE(stopsWithin(interruption.token(), 50ms));
    }
    sigaction(SIGINT, &before, nullptr);
}

TEST(Interruption, ASecondSignalEndsTheProcessAtOnce)
{
    const int status = statusOfChild([] {
        const Interruption interruption;
        raise(SIGINT);
        if (!stopsWithin(interruption.token(), 5s)) {
            _exit(98);
        }
        raise(SIGINT);
        std::this_thread::sleep_for(10s);
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 130);
}
