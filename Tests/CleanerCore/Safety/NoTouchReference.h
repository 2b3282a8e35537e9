#pragma once

#include <string_view>

namespace TestSupport {

/// The no-touch rules, told once more and as plainly as possible: over the whole list of lower-cased components, with
/// the rows of the Linux table read by an interpreter of its own. Slow; what the real policy answers is compared to it.
[[nodiscard]] bool isNoTouchByReference(std::string_view path);

} // namespace TestSupport
