#pragma once

#include "Platform/Base/JSONError.h"
#include "Platform/Base/JSONValue.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <string_view>

/// Reads a JSON document (RFC 8259) strictly. Bytes that are not UTF-8, a key that an object has twice, a number beyond
/// the range of a double, a NUL byte and anything behind the document are errors; a byte order mark in front is not.
namespace Platform::JSONReader {

/// How many arrays and objects may lie within each other.
inline constexpr std::size_t kDefaultMaximumDepth = 64;

/// What becomes of an object that has a key twice. `makeTheObjectNull` is for who saves what can be saved from a damaged
/// document: the object is a splice of two, and nothing in it is to be trusted, but what stands around it is.
enum class RepeatedKeys : std::uint8_t { areAnError, makeTheObjectNull };

/// Never throws, whatever the bytes. Memory and time are linear in their number.
[[nodiscard]] std::expected<JSONValue, JSONError> parse(std::string_view bytes,
    std::size_t maximumDepth = kDefaultMaximumDepth, RepeatedKeys repeatedKeys = RepeatedKeys::areAnError);

} // namespace Platform::JSONReader
