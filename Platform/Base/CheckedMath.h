#pragma once

#include <concepts>
#include <limits>

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

/// For figures that a file from outside tells, where no sum may end the program: what overflows stays at the limit.
template <std::signed_integral T>
[[nodiscard]] constexpr T saturatingAdd(T left, T right)
{
    T sum{};
    if (__builtin_add_overflow(left, right, &sum)) {
        return right < 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
    }
    return sum;
}

} // namespace Platform
