#pragma once

#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Sessions/CandidateIndex.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace KarvelloUI {

inline constexpr Platform::Date kScannedAt{700'000'000};

struct SampleCandidate {
    std::string_view path;
    CleanerCore::CleanupCategory category = CleanerCore::CleanupCategory::userCaches;
    CleanerCore::CleanupSafety safety = CleanerCore::CleanupSafety::safe;
    std::int64_t sizeBytes = 1;
    bool isSelectedByDefault = false;
};

inline CleanerCore::CleanupCandidate made(const SampleCandidate& sample)
{
    return CleanerCore::CleanupCandidate({.url = Platform::FileURL(sample.path),
        .category = sample.category,
        .sizeBytes = sample.sizeBytes,
        .isSelectedByDefault = sample.isSelectedByDefault,
        .safety = sample.safety});
}

inline std::shared_ptr<const CandidateIndex> indexOf(std::vector<CleanerCore::CleanupCandidate> candidates)
{
    return std::make_shared<const CandidateIndex>(CleanerCore::ScanReport(kScannedAt, std::move(candidates), {}));
}

inline std::shared_ptr<const CandidateIndex> indexOf(const std::vector<SampleCandidate>& samples)
{
    std::vector<CleanerCore::CleanupCandidate> candidates;
    candidates.reserve(samples.size());
    for (const auto& sample : samples) {
        candidates.push_back(made(sample));
    }
    return indexOf(std::move(candidates));
}

inline std::string idOf(const SampleCandidate& sample)
{
    return made(sample).id;
}

inline KarvelloCopy english()
{
    return KarvelloCopy{AppLanguage::english};
}

} // namespace KarvelloUI
