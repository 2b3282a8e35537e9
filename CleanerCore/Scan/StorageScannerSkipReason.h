#pragma once

#include <string_view>

/// The scanner's own words for `SkippedItem::reason`. They are part of exports and are matched by later stages: exact.
namespace CleanerCore::StorageScannerSkipReason {

inline constexpr std::string_view folderDoesNotExist = "Folder does not exist";
inline constexpr std::string_view symbolicLink = "Symbolic links are skipped for safety";
inline constexpr std::string_view noTouchPath = "Protected user data path";
inline constexpr std::string_view noTouchDescendant = "Contains protected user data";
inline constexpr std::string_view recentlyModified = "Recently modified";
inline constexpr std::string_view emptyItem = "Empty item";
inline constexpr std::string_view inventoryItemLimitExceeded = "Folder inventory limit exceeded";
inline constexpr std::string_view duplicateHashBudgetExceeded = "Duplicate hash budget exceeded";
inline constexpr std::string_view couldNotEnumerateFolder = "Could not enumerate folder";
inline constexpr std::string_view couldNotEnumeratePackage = "Could not enumerate package";
inline constexpr std::string_view scanRootItself = "Scan root itself is not a cleanup candidate";

} // namespace CleanerCore::StorageScannerSkipReason
