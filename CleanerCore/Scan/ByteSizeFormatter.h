#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The one formatter of sizes, for every screen, table and message.
namespace CleanerCore::ByteSizeFormatter {

/// "0 bytes", "1.5 KB", "100 MB". `locale` is a language or locale identifier such as "en" or "ko-KR"; only Korean
/// changes the form ("1byte", "1KB"), and the decimal mark is a point in every language. Negative counts as 0.
[[nodiscard]] std::string string(std::int64_t byteCount, std::string_view locale = "en");

} // namespace CleanerCore::ByteSizeFormatter
