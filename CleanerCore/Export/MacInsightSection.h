#pragma once

#include <string_view>

/// The sections of an insight scan's CSV file. In a redacted one they are the labels of the tokens as well.
namespace CleanerCore::MacInsightSection {

inline constexpr std::string_view heatmap = "heatmap";
inline constexpr std::string_view largeFiles = "largeFiles";
inline constexpr std::string_view downloads = "downloads";
inline constexpr std::string_view duplicates = "duplicates";
inline constexpr std::string_view security = "security";
inline constexpr std::string_view system = "system";
inline constexpr std::string_view skipped = "skipped";

} // namespace CleanerCore::MacInsightSection
