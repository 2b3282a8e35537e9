#include "CleanerCore/Insights/DuplicateFileGroup.h"

#include "CleanerCore/Insights/DuplicateKeeperChoice.h"
#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

DuplicateFileGroup::DuplicateFileGroup(std::string hash, std::int64_t size, std::vector<FileInsight> copies)
    : id(std::move(hash))
    , sizeBytes(std::max<std::int64_t>(size, 0))
    , files(std::move(copies))
{
    std::ranges::stable_sort(files, prefersKeeper);
}

std::span<const FileInsight> DuplicateFileGroup::extraCopies() const
{
    return std::span(files).subspan(files.empty() ? 0 : 1);
}

std::int64_t DuplicateFileGroup::wastedBytes() const
{
    std::int64_t sum = 0;
    for (const auto& copy : extraCopies()) {
        // The sizes of a group that was read come from outside.
        sum = Platform::saturatingAdd(sum, copy.sizeBytes);
    }
    return sum;
}

std::optional<DuplicateKeeperRecommendation> DuplicateFileGroup::keeperRecommendation() const
{
    if (files.size() < 2) {
        return std::nullopt;
    }
    const auto& chosen = files.front();
    return DuplicateKeeperRecommendation{
        .groupID = id,
        .keeperID = chosen.id,
        .keeperPath = chosen.url.path(),
        .duplicateCount = static_cast<std::int64_t>(files.size()),
        .reasons = keeperRecommendationReasons(chosen, files),
    };
}

} // namespace CleanerCore
