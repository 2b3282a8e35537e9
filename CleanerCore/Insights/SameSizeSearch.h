#pragma once

#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "CleanerCore/Insights/DuplicateSizes.h"
#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Insights/SearchedFile.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace CleanerCore {

/// How many files a search may still read whole. A file counts whether it can be read or not.
class DuplicateHashBudget {
public:
    explicit DuplicateHashBudget(const InsightConfiguration& configuration);

    [[nodiscard]] bool allowsFilesOf(std::int64_t size) const { return size <= m_maximumBytesPerFile; }
    /// Takes one file of an allowed size from the budget; false if that would pass a limit.
    [[nodiscard]] bool take(std::int64_t size);

private:
    std::int64_t m_filesLeft;
    std::int64_t m_bytesLeft;
    std::int64_t m_maximumBytesPerFile;
};

/// The search among the files of one size, in steps: fingerprints, the choice of what to hash, the hashing, the result.
/// The steps decide by the order of the files alone, so they may be done ahead of time and by several threads: what
/// comes out is what one thread would have found that takes file by file.
class SameSizeSearch {
public:
    struct Result {
        /// In the order of their digests.
        std::vector<DuplicateFileGroup> groups;
        std::vector<SkippedItem> skipped;
        bool isTruncated = false;
        /// The search was stopped before all files of this size were done.
        bool isStopped = false;
    };

    explicit SameSizeSearch(const SameSizeFiles& files);

    [[nodiscard]] std::span<SearchedFile> files() { return m_files; }

    /// Decides which files are hashed, once the fingerprints are taken: none if a stop left one undone. Call it for one
    /// size after the other; not at all means that the search was stopped before.
    void chooseFilesToHash(DuplicateHashBudget& budget);
    /// A limit was met: no smaller size is looked at.
    [[nodiscard]] bool isLast() const { return m_isLast; }
    /// What has to be compared, one list for each fingerprint. Of files that were read already there is none.
    [[nodiscard]] std::vector<std::vector<SearchedFile*>> setsToCompare();

    /// Once all that was chosen is hashed. Each file is looked at once more: one that is not what was hashed is left out.
    [[nodiscard]] Result result(const Platform::FileManager& fileManager) const;

private:
    /// The files that one thread would have taken a fingerprint of: those before the first that a stop left undone.
    [[nodiscard]] std::span<const SearchedFile> fingerprintedFiles() const;
    [[nodiscard]] std::optional<DuplicateFileGroup> group(const Platform::SHA256::Digest& digest,
        std::span<const SearchedFile* const> copies, const Platform::FileManager& fileManager,
        std::vector<SkippedItem>& skipped) const;

    std::int64_t m_size;
    std::vector<SearchedFile> m_files;
    /// The files with a companion, as far as the budget goes; or all of them, if they are too large for it.
    std::vector<SearchedFile*> m_chosen;
    bool m_isChosen = false;
    bool m_exceedsBudget = false;
    bool m_isTruncated;
    bool m_isLast;
};

} // namespace CleanerCore
