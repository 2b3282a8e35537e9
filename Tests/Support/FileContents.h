#pragma once

#include <string>
#include <string_view>

namespace TestSupport {

/// The bytes of a file; none for one that cannot be read.
[[nodiscard]] std::string contentsOf(const std::string& path);
/// The bytes of a file of Tests/Golden.
[[nodiscard]] std::string golden(std::string_view name);

} // namespace TestSupport
