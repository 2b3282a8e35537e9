#include "Tests/Support/FailingSystemCall.h"

#include "Platform/Files/FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <future>
#include <gtest/gtest.h>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

namespace TestSupport {

namespace {

/// What becomes of the calls of this thread from now on; the descriptor that the flags ask for, or the negative error.
int filter(const SystemCalls& calls, std::uint32_t action, unsigned flags)
{
    // The low half of an argument comes first on the machines that this runs on.
    const auto argument =
        static_cast<std::uint32_t>(offsetof(seccomp_data, args) + sizeof(std::uint64_t) * calls.argument);
    std::array<sock_filter, 7> program{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(calls.number), 0, 4),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, argument),
        BPF_STMT(BPF_ALU | BPF_AND | BPF_K, calls.mask),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, calls.value, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, action),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog whole{.len = program.size(), .filter = program.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) {
        return -errno;
    }
    const auto result = syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, flags, &whole);
    return result < 0 ? -errno : static_cast<int>(result);
}

/// Waits for the next call; false once nobody is left who could make one.
bool answerNext(int listener, std::size_t before, const SystemCallAnswer& answer)
{
    pollfd ready{.fd = listener, .events = POLLIN, .revents = 0};
    poll(&ready, 1, -1);
    seccomp_notif asked{};
    if ((ready.revents & POLLIN) == 0 || ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &asked) != 0) {
        return false;
    }
    PendingSystemCall call{.before = before};
    std::copy(std::begin(asked.data.args), std::end(asked.data.args), call.arguments.begin());
    seccomp_notif_resp response{.id = asked.id, .val = 0, .error = 0, .flags = 0};
    const auto result = answer(call);
    if (!result) {
        response.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
    } else if (*result < 0) {
        response.error = static_cast<std::int32_t>(*result);
    } else {
        response.val = *result;
    }
    return ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &response) == 0;
}

} // namespace

SystemCalls callsOn(long number, int descriptor)
{
    return {.number = number, .argument = 0, .mask = ~0U, .value = static_cast<std::uint32_t>(descriptor)};
}

void failSystemCall(const SystemCalls& calls, int systemError)
{
    ASSERT_EQ(filter(calls, SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(systemError), 0), 0);
}

std::string PendingSystemCall::text(std::size_t argument) const
{
    return pointer<const char>(argument);
}

void answerSystemCalls(const SystemCalls& calls, const SystemCallAnswer& answer, const std::function<void()>& part)
{
    std::promise<int> listening;
    const std::jthread thread([&] {
        const int listener = filter(calls, SECCOMP_RET_USER_NOTIF, SECCOMP_FILTER_FLAG_NEW_LISTENER);
        listening.set_value(listener);
        if (listener >= 0) {
            part();
        }
    });
    const int opened = listening.get_future().get();
    ASSERT_GE(opened, 0) << "this system does not let the test answer system calls: " << std::strerror(-opened);
    const Platform::FileDescriptor listener(opened);
    for (std::size_t before = 0; answerNext(listener.get(), before, answer); ++before) {}
}

SystemCallAnswer failingOnce(int systemError, std::size_t before)
{
    return [=](const PendingSystemCall& call) {
        return call.before == before ? std::optional<std::int64_t>(-systemError) : std::nullopt;
    };
}

} // namespace TestSupport
