#pragma once

#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/InsightConfiguration.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace CleanerCore {

/// The files of one size that a search looks at.
struct SameSizeFiles {
    std::int64_t size = 0;
    /// In review order; each file once, under the first of its names in that order.
    std::vector<const FileRecord*> records;
    /// There are more than the limit of results allows.
    bool isCutShort = false;
};

/// The sizes that two or more of the records share, the largest first. The records must outlive it.
class DuplicateSizes {
public:
    DuplicateSizes(std::span<const FileRecord> records, const InsightConfiguration& configuration);

    /// Nothing at the end.
    [[nodiscard]] std::optional<SameSizeFiles> next();

private:
    std::vector<const FileRecord*> m_records;
    std::size_t m_position = 0;
    std::size_t m_maximumCount;
};

} // namespace CleanerCore
