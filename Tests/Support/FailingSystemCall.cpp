#include "Tests/Support/FailingSystemCall.h"

#include <array>
#include <cstddef>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>

namespace TestSupport {

void failSystemCall(const SystemCallFault& fault)
{
    // The low half of an argument comes first on the machines that this runs on.
    const auto argument =
        static_cast<std::uint32_t>(offsetof(seccomp_data, args) + sizeof(std::uint64_t) * fault.argument);
    std::array<sock_filter, 7> program{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(fault.number), 0, 4),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, argument),
        BPF_STMT(BPF_ALU | BPF_AND | BPF_K, fault.mask),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, fault.value, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(fault.systemError)),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog filter{.len = program.size(), .filter = program.data()};
    ASSERT_EQ(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    ASSERT_EQ(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter), 0);
}

} // namespace TestSupport
