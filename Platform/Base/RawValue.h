#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace Platform {

/// The raw strings of an enumeration whose enumerators count up from 0 in declaration order. Specialise it with
/// `static constexpr std::array<std::string_view, N> names`, in that order.
template <typename E>
struct RawValues;

template <typename E>
concept RawRepresentable = requires { RawValues<E>::names.size(); };

template <RawRepresentable E>
[[nodiscard]] constexpr std::string_view rawValue(E value)
{
    return RawValues<E>::names[static_cast<std::size_t>(value)];
}

template <RawRepresentable E>
[[nodiscard]] constexpr auto allCases()
{
    std::array<E, RawValues<E>::names.size()> cases{};
    for (std::size_t index = 0; index < cases.size(); ++index) {
        cases[index] = static_cast<E>(index);
    }
    return cases;
}

template <RawRepresentable E>
[[nodiscard]] constexpr std::optional<E> fromRawValue(std::string_view raw)
{
    for (const E value : allCases<E>()) {
        if (rawValue(value) == raw) {
            return value;
        }
    }
    return std::nullopt;
}

} // namespace Platform
