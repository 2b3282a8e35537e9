#pragma once

#include "CleanerCore/Insights/DuplicateFinder.h"
#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/InsightConfiguration.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Files/FileManager.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CleanerCore {

/// The search for duplicates as it is meant, told plainly: one file after another, each read and hashed for itself. What
/// the finder is measured against.
class SequentialDuplicates {
public:
    SequentialDuplicates(const InsightConfiguration& configuration, const Platform::FileManager& fileManager)
        : m_configuration(configuration)
        , m_fileManager(fileManager)
    {
    }

    [[nodiscard]] DuplicateSearchResult find(std::span<const FileRecord> records, std::vector<SkippedItem>& skipped);

    /// The paths that were hashed, those with the same fingerprint under it.
    [[nodiscard]] const std::map<std::string, std::vector<std::string>>& hashedPaths() const { return m_hashedPaths; }

private:
    [[nodiscard]] std::optional<std::string> fingerprint(const FileRecord& record, std::vector<SkippedItem>& skipped);
    [[nodiscard]] std::optional<std::string> sha256(const FileRecord& record, std::vector<SkippedItem>& skipped);
    [[nodiscard]] DuplicateFileGroup group(
        const std::string& digest, std::int64_t size, const std::vector<const FileRecord*>& copies);

    const InsightConfiguration& m_configuration;
    const Platform::FileManager& m_fileManager;
    std::map<std::string, std::vector<std::string>> m_hashedPaths;
};

} // namespace CleanerCore
