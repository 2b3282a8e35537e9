#include "Platform/Base/DecimalForm.h"

#include <array>
#include <charconv>
#include <cmath>

namespace Platform {

std::string shortestDecimalForm(double value)
{
    const auto magnitude = std::abs(value);
    const bool isPlain = magnitude == 0 || (magnitude >= 1e-4 && magnitude < 1e16);
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
        isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    return {text.data(), end.ptr};
}

} // namespace Platform
