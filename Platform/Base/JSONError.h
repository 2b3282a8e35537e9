#pragma once

#include <string>
#include <string_view>

namespace Platform {

/// Why a text is not the JSON that was expected, or why a value has no JSON.
struct JSONError {
    /// What is wrong, in words: "expected a string, found a number".
    std::string message;
    /// Where in the document, "candidates[3].url"; empty for the whole.
    std::string path;

    /// The same error seen from the object or array that holds the place.
    [[nodiscard]] JSONError withinMember(std::string_view key) &&;
    [[nodiscard]] JSONError withinElement(std::size_t index) &&;

    /// The path, a colon and the message.
    [[nodiscard]] std::string localizedDescription() const;

    friend bool operator==(const JSONError&, const JSONError&) = default;
};

} // namespace Platform
