#include "Platform/Base/CheckedMath.h"

#include <cstdio>
#include <cstdlib>

namespace Platform {

void reportArithmeticOverflow(const char* operation)
{
    std::fprintf(stderr, "Karvello stops: a signed 64-bit %s overflowed.\n", operation);
    std::abort();
}

} // namespace Platform
