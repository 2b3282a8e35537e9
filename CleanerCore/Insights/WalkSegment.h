#pragma once

#include "CleanerCore/Insights/FileRecord.h"
#include "CleanerCore/Insights/VisitLog.h"
#include "Platform/Base/FileURL.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace CleanerCore {

class WalkTask;

/// A folder that counts as one item.
struct PackageVisit {
    Platform::FileURL url;
    VisitLog inside;
    /// For a package that is a finding; its sizes are those of the folder itself.
    std::optional<FileRecord> record;
};

/// A stretch of a walk: what some visits in a row met, and what comes between them and the next stretch.
struct WalkSegment {
    static constexpr std::size_t kMaximumVisits = 512;

    VisitLog log;
    std::vector<AtVisit<FileRecord>> records;
    /// What the last visit met: a package ends its segment.
    std::optional<PackageVisit> package;
    /// The walks that come next in the order of the tree.
    std::vector<std::shared_ptr<WalkTask>> subwalks;
};

} // namespace CleanerCore
