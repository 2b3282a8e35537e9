#pragma once

#include "Platform/Files/FileError.h"

#include <cstdint>
#include <expected>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Platform {

/// Bytes as a preference, kept apart from a text.
struct DefaultsData {
    std::string bytes;

    friend bool operator==(const DefaultsData&, const DefaultsData&) = default;
};

using DefaultsDictionary = std::map<std::string, std::string, std::less<>>;
using DefaultsValue = std::variant<bool, std::int64_t, double, std::string, DefaultsData, DefaultsDictionary>;

struct DefaultsChange {
    std::string key;
    /// Nothing takes the key away.
    std::optional<DefaultsValue> value;
};

/// The stored preferences: one document of typed values for all of the user's processes. Every call may be made from any
/// thread.
class UserDefaults {
public:
    /// Gets the keys whose values are others now, whoever changed them. It is called without a lock held, on the thread
    /// that made the change or that noticed another process's.
    using Observer = std::function<void(std::span<const std::string> keys)>;
    /// Ends the observation with its own life, and waits for a call of the observer that is under way on another thread.
    using Observation = std::shared_ptr<void>;

    UserDefaults() = default;
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    virtual ~UserDefaults() = default;

    [[nodiscard]] virtual std::optional<DefaultsValue> value(std::string_view key) const = 0;
    /// Makes all of the changes or none: after a failure both the memory and the disk are as they were.
    [[nodiscard]] virtual std::expected<void, FileError> apply(std::span<const DefaultsChange> changes) = 0;
    [[nodiscard]] virtual Observation observe(Observer observer) = 0;

    /// The value if it is of the type that is asked for, else nothing.
    [[nodiscard]] std::optional<bool> boolean(std::string_view key) const;
    /// An integer counts, too.
    [[nodiscard]] std::optional<double> number(std::string_view key) const;
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const;
    [[nodiscard]] std::optional<std::string> data(std::string_view key) const;
    [[nodiscard]] std::optional<DefaultsDictionary> dictionary(std::string_view key) const;

    [[nodiscard]] std::expected<void, FileError> set(std::string_view key, DefaultsValue value);
    [[nodiscard]] std::expected<void, FileError> remove(std::string_view key);
};

} // namespace Platform
