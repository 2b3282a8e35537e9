#include "Tests/Fuzz/ReaderTargets.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (!FuzzTargets::jsonHolds({reinterpret_cast<const char*>(data), size})) {
        std::abort();
    }
    return 0;
}
