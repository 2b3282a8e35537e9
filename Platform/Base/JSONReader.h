#pragma once

#include "Platform/Base/JSONError.h"
#include "Platform/Base/JSONValue.h"

#include <cstddef>
#include <expected>
#include <string_view>

/// Reads a JSON document (RFC 8259) strictly. Bytes that are not UTF-8, a key that an object has twice, a number beyond
/// the range of a double, a NUL byte and anything behind the document are errors; a byte order mark in front is not.
namespace Platform::JSONReader {

/// How many arrays and objects may lie within each other.
inline constexpr std::size_t kDefaultMaximumDepth = 64;

/// Never throws, whatever the bytes. Memory and time are linear in their number.
[[nodiscard]] std::expected<JSONValue, JSONError> parse(
    std::string_view bytes, std::size_t maximumDepth = kDefaultMaximumDepth);

} // namespace Platform::JSONReader
