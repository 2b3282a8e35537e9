#pragma once

#include <cstdint>

namespace TestSupport {

/// Which calls fail: those whose argument, masked, has the value. Without a mask all do.
struct SystemCallFault {
    long number = 0;
    int systemError = 0;
    unsigned argument = 0;
    std::uint32_t mask = 0;
    std::uint32_t value = 0;
};

/// From now on this process and its children get the error instead of the call. There is no way back: only for
/// `inChildProcess` and its like. Faults add up.
void failSystemCall(const SystemCallFault& fault);

} // namespace TestSupport
