#include "Platform/Services/UserDefaults.h"

#include <array>
#include <utility>

namespace Platform {

namespace {

template <typename T>
std::optional<T> only(std::optional<DefaultsValue> value)
{
    auto* const held = value ? std::get_if<T>(&*value) : nullptr;
    return held != nullptr ? std::optional(std::move(*held)) : std::nullopt;
}

} // namespace

std::optional<bool> UserDefaults::boolean(std::string_view key) const
{
    return only<bool>(value(key));
}

std::optional<double> UserDefaults::number(std::string_view key) const
{
    auto stored = value(key);
    if (const auto integer = only<std::int64_t>(stored)) {
        return static_cast<double>(*integer);
    }
    return only<double>(std::move(stored));
}

std::optional<std::string> UserDefaults::string(std::string_view key) const
{
    return only<std::string>(value(key));
}

std::optional<std::string> UserDefaults::data(std::string_view key) const
{
    auto held = only<DefaultsData>(value(key));
    return held ? std::optional(std::move(held->bytes)) : std::nullopt;
}

std::optional<DefaultsDictionary> UserDefaults::dictionary(std::string_view key) const
{
    return only<DefaultsDictionary>(value(key));
}

std::expected<void, FileError> UserDefaults::set(std::string_view key, DefaultsValue value)
{
    return apply(std::array{DefaultsChange{.key = std::string(key), .value = std::move(value)}});
}

std::expected<void, FileError> UserDefaults::remove(std::string_view key)
{
    return apply(std::array{DefaultsChange{.key = std::string(key), .value = std::nullopt}});
}

} // namespace Platform
