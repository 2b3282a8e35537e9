#pragma once

#include "Platform/Base/JSONError.h"
#include "Platform/Base/JSONValue.h"
#include "Platform/Services/UserDefaults.h"

#include <expected>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Platform {

/// The preferences as a JSON object. Truth values, whole numbers and strings stand as they are, and so do other numbers;
/// the rest is told apart by a name: {"double" : 5}, {"data" : "base64"}, {"dictionary" : {"key" : "text"}}. An entry that
/// is none of these has no value here, and is written again as it was read.
class DefaultsDocument {
public:
    /// Strict: a document that is not an object of JSON through and through is refused.
    [[nodiscard]] static std::expected<DefaultsDocument, JSONError> parse(std::string_view bytes);
    /// Fails for a text that is not UTF-8, and for a number that is not finite.
    [[nodiscard]] std::expected<std::string, JSONError> encoded() const;

    [[nodiscard]] std::optional<DefaultsValue> value(std::string_view key) const;

    /// Whether the changes make another document of this one.
    [[nodiscard]] bool isChangedBy(std::span<const DefaultsChange> changes) const;
    /// In their order.
    void apply(std::span<const DefaultsChange> changes);

    /// The keys whose values differ, in the order of their bytes.
    [[nodiscard]] std::vector<std::string> keysThatDiffer(const DefaultsDocument& other) const;

    friend bool operator==(const DefaultsDocument&, const DefaultsDocument&) = default;

private:
    /// The JSON of an entry that nothing is known of.
    using Entry = std::variant<DefaultsValue, JSONValue>;

    std::map<std::string, Entry, std::less<>> m_entries;
};

} // namespace Platform
