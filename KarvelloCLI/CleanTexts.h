#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "KarvelloCLI/TextStyle.h"
#include "Platform/Base/Date.h"

#include <cstddef>
#include <span>
#include <string>

/// What a person reads of a clean, before and after.
namespace KarvelloCLI {

/// How many moved items an account that is not verbose names.
inline constexpr std::size_t kShownMovedItems = 20;

/// What is about to move: how much, of what kind, and each item with its whole path, by safety.
[[nodiscard]] std::string cleanPreview(
    std::span<const CleanerCore::CleanupCandidate> candidates, Platform::Date scannedAt, const TextStyle& style);

/// "Move 3 items (176 KB) to the Trash?"
[[nodiscard]] std::string cleanQuestion(
    std::span<const CleanerCore::CleanupCandidate> candidates, const TextStyle& style);

/// What became of each of the `requested` candidates: moved, refused and why, or not reached.
[[nodiscard]] std::string cleanAccount(std::span<const CleanerCore::CleanupCandidate> requested,
    const CleanerCore::CleanResult& result, const TextStyle& style);

} // namespace KarvelloCLI
