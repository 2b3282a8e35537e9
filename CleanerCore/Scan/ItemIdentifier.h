#pragma once

#include "Platform/Base/FileURL.h"

#include <string>
#include <string_view>

namespace CleanerCore {

/// The path as part of an id, which is text whatever the path holds. Where the path is not UTF-8, each byte that is part
/// of no character stands as "//xHH": a path never holds two slashes in a row, so no other path gives the same text.
[[nodiscard]] std::string identifyingPath(const Platform::FileURL& url);

/// `prefix`, a colon and the identifying path.
[[nodiscard]] std::string itemIdentifier(std::string_view prefix, const Platform::FileURL& url);

} // namespace CleanerCore
