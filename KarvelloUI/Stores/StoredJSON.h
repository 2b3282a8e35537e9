#pragma once

#include "KarvelloUI/Stores/StoredData.h"
#include "Platform/Base/JSONCoding.h"

#include <expected>
#include <optional>
#include <string>
#include <utility>

namespace KarvelloUI {

/// A value in memory and its JSON in the stored preferences, kept in step: `Value` has a `JSONCoding`, or is an
/// `std::optional` of what has one. An empty value stands for an empty key.
template <typename Value>
class StoredJSON {
public:
    /// Brings a value that was read into the order in which it is kept.
    using Settle = void (*)(Value&);

    StoredJSON(Platform::UserDefaults& defaults, std::string key, MalformedBackup backup, Settle settle = nullptr)
        : m_data(defaults, std::move(key), backup)
        , m_settle(settle)
    {
    }

    [[nodiscard]] const Value& value() const { return m_value; }
    [[nodiscard]] const StoredData& data() const { return m_data; }

    /// The reason if the stored data was unreadable; it is set aside then, and the value empty.
    [[nodiscard]] std::optional<std::string> load()
    {
        return m_data.load([this](const std::string& bytes) { return take(&bytes); });
    }

    /// Takes over what somebody else has stored. Whether the value is another one now.
    [[nodiscard]] bool update()
    {
        auto old = m_value;
        m_data.update([this](const std::string* bytes) { return take(bytes); });
        return m_value != old;
    }

    /// Stores first: a failure leaves the old value in memory and on disk.
    [[nodiscard]] std::expected<void, std::string> replace(Value value)
    {
        auto saved = store(value);
        if (saved) {
            m_value = std::move(value);
        }
        return saved;
    }

    /// Empties the value even if the stored one cannot be removed.
    [[nodiscard]] std::expected<void, std::string> drop()
    {
        m_value = Value();
        return m_data.remove();
    }

private:
    template <typename Stored>
    [[nodiscard]] std::expected<void, std::string> store(const Stored& value)
    {
        const auto bytes = Platform::encodeJSON(value);
        if (!bytes) {
            return std::unexpected(StoredData::kUnwritable);
        }
        return m_data.save(*bytes);
    }

    template <typename Stored>
    [[nodiscard]] std::expected<void, std::string> store(const std::optional<Stored>& value)
    {
        return value ? store(*value) : m_data.remove();
    }

    template <typename Stored>
    [[nodiscard]] static std::expected<Stored, Platform::JSONError> read(
        const std::string& bytes, const Stored* /*kind*/)
    {
        return Platform::decodeJSON<Stored>(bytes);
    }

    template <typename Stored>
    [[nodiscard]] static std::expected<Stored, Platform::JSONError> read(
        const std::string& bytes, const std::optional<Stored>* /*kind*/)
    {
        return Platform::decodeJSON<Stored>(bytes);
    }

    bool take(const std::string* bytes)
    {
        if (bytes == nullptr) {
            m_value = Value();
            return true;
        }
        auto found = read(*bytes, static_cast<const Value*>(nullptr));
        if (!found) {
            return false;
        }
        m_value = *std::move(found);
        if (m_settle != nullptr) {
            m_settle(m_value);
        }
        return true;
    }

    StoredData m_data;
    Settle m_settle;
    Value m_value = {};
};

} // namespace KarvelloUI
