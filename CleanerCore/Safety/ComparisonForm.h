#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace CleanerCore {

/// How the names of a volume are told apart.
enum class NameComparison : std::uint8_t { caseSensitive, caseInsensitive };

/// The rule of the volume that `folder` lies on. What a volume does not tell counts as case-insensitive: more paths are
/// then taken for protected ones.
[[nodiscard]] NameComparison nameComparison(const Platform::FileURL& folder, const Platform::FileManager& fileManager);

/// The form in which paths are compared: lower-cased where case tells no names apart.
[[nodiscard]] std::string comparisonForm(std::string_view path, NameComparison comparison);

/// The path with all symbolic links in it resolved.
[[nodiscard]] std::string resolvedPath(const Platform::FileURL& url, const Platform::FileManager& fileManager);

/// Whether `path` is `parent` or lies below it. By bytes: both are in the same comparison form.
[[nodiscard]] bool equalsOrIsInside(std::string_view path, std::string_view parent);

} // namespace CleanerCore
