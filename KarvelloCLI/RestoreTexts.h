#pragma once

#include "CleanerCore/Cleaning/RestoreResult.h"
#include "KarvelloCLI/RestoreCatalog.h"
#include "KarvelloCLI/TextStyle.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <span>
#include <string>

/// What a person reads of a restore, before and after.
namespace KarvelloCLI {

/// Every clean with its items: id, size, where each was and where it is, and why it cannot go back. Those that have left
/// the Trash are only counted unless the text is verbose.
[[nodiscard]] std::string restoreList(
    const RestoreCatalog& catalog, const Platform::FileManager& fileManager, const TextStyle& style);

/// What is about to go back, and where to.
[[nodiscard]] std::string restorePreview(
    std::span<const CleanerCore::CleanedItem> items, std::int64_t bytes, const TextStyle& style);

/// "Put 3 items (176 KB) back?"
[[nodiscard]] std::string restoreQuestion(
    std::span<const CleanerCore::CleanedItem> items, std::int64_t bytes, const TextStyle& style);

/// What became of each of the `requested` items: put back, refused and why, or not reached.
[[nodiscard]] std::string restoreAccount(std::span<const CleanerCore::CleanedItem> requested,
    const CleanerCore::RestoreResult& result, const TextStyle& style);

} // namespace KarvelloCLI
