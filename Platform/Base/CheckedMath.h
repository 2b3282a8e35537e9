#pragma once

#include <concepts>

namespace Platform {

/// Ends the program with a message: an overflow of a byte count or a counter is a programming error, never data.
[[noreturn]] void reportArithmeticOverflow(const char* operation);

template <std::integral T>
[[nodiscard]] constexpr T checkedAdd(T left, T right)
{
    T sum{};
    if (__builtin_add_overflow(left, right, &sum)) {
        reportArithmeticOverflow("addition");
    }
    return sum;
}

template <std::integral T>
[[nodiscard]] constexpr T checkedMultiply(T left, T right)
{
    T product{};
    if (__builtin_mul_overflow(left, right, &product)) {
        reportArithmeticOverflow("multiplication");
    }
    return product;
}

} // namespace Platform
