#pragma once

#include "CleanerCore/Insights/DuplicateKeeperRecommendation.h"
#include "CleanerCore/Insights/FileInsight.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CleanerCore {

/// Files with the same contents.
struct DuplicateFileGroup {
    DuplicateFileGroup() = default;
    /// A negative `size` counts as 0; the files are put in the order of `prefersKeeper`.
    DuplicateFileGroup(std::string hash, std::int64_t size, std::vector<FileInsight> copies);

    /// The SHA-256 of the contents: 64 lower-case hexadecimal digits.
    std::string id;
    /// The logical size of each file.
    std::int64_t sizeBytes = 0;
    /// The first one is the keeper.
    std::vector<FileInsight> files;

    /// Nothing for a group without files.
    [[nodiscard]] const FileInsight* keeper() const { return files.empty() ? nullptr : files.data(); }
    /// All but the keeper.
    [[nodiscard]] std::span<const FileInsight> extraCopies() const;
    /// What the extra copies hold on the disk, which need not be a multiple of `sizeBytes`.
    [[nodiscard]] std::int64_t wastedBytes() const;
    /// Nothing for fewer than two files.
    [[nodiscard]] std::optional<DuplicateKeeperRecommendation> keeperRecommendation() const;

    friend bool operator==(const DuplicateFileGroup&, const DuplicateFileGroup&) = default;
};

} // namespace CleanerCore
