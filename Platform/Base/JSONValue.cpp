#include "Platform/Base/JSONValue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace Platform {

namespace {

/// Up to here every whole number is a double of its own.
constexpr double kLargestExactDouble = 9'007'199'254'740'992;

} // namespace

// Here and not in the header: a compiler may ask for the whole of `Member` at a constructor's body.
JSONValue::JSONValue() = default;

JSONValue::JSONValue(bool value)
    : m_content(value)
{
}

JSONValue::JSONValue(std::int64_t value)
    : m_content(value)
{
}

JSONValue::JSONValue(double value)
    : m_content(value)
{
}

JSONValue::JSONValue(std::string value)
    : m_content(std::move(value))
{
}

JSONValue::JSONValue(Array elements)
    : m_content(std::move(elements))
{
}

JSONValue::JSONValue(std::uint64_t value)
{
    if (std::in_range<std::int64_t>(value)) {
        m_content = static_cast<std::int64_t>(value);
    } else {
        m_content = value;
    }
}

JSONValue::JSONValue(Object members)
{
    sortByKey(members);
    m_content = std::move(members);
}

std::optional<std::string> JSONValue::sortByKey(Object& members)
{
    if (!std::ranges::is_sorted(members, {}, &Member::key)) {
        std::ranges::sort(members, {}, &Member::key);
    }
    const auto twice = std::ranges::adjacent_find(members, {}, &Member::key);
    return twice != members.end() ? std::optional(twice->key) : std::nullopt;
}

std::optional<bool> JSONValue::boolean() const
{
    const auto* const value = std::get_if<bool>(&m_content);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

std::optional<std::int64_t> JSONValue::integer() const
{
    if (const auto* const value = std::get_if<std::int64_t>(&m_content)) {
        return *value;
    }
    if (const auto* const value = std::get_if<double>(&m_content)) {
        if (std::trunc(*value) == *value && std::abs(*value) <= kLargestExactDouble) {
            return static_cast<std::int64_t>(*value);
        }
    }
    return std::nullopt;
}

std::optional<std::uint64_t> JSONValue::unsignedInteger() const
{
    if (const auto* const value = std::get_if<std::uint64_t>(&m_content)) {
        return *value;
    }
    const auto value = integer();
    return value && *value >= 0 ? std::optional(static_cast<std::uint64_t>(*value)) : std::nullopt;
}

std::optional<double> JSONValue::number() const
{
    if (const auto* const value = std::get_if<double>(&m_content)) {
        return *value;
    }
    if (const auto* const value = std::get_if<std::int64_t>(&m_content)) {
        return static_cast<double>(*value);
    }
    if (const auto* const value = std::get_if<std::uint64_t>(&m_content)) {
        return static_cast<double>(*value);
    }
    return std::nullopt;
}

const JSONValue* JSONValue::member(std::string_view key) const
{
    const auto* const members = object();
    if (members == nullptr) {
        return nullptr;
    }
    const auto found = std::ranges::lower_bound(*members, key, {}, &Member::key);
    return found != members->end() && found->key == key ? &found->value : nullptr;
}

std::string_view JSONValue::kindName() const
{
    constexpr std::array<std::string_view, std::variant_size_v<decltype(m_content)>> names{
        "null", "a boolean", "a number", "a number", "a number", "a string", "an array", "an object"};
    return names[m_content.index()];
}

bool operator==(const JSONValue& left, const JSONValue& right)
{
    return left.m_content == right.m_content;
}

} // namespace Platform
