#include "CleanerCore/Scan/ScanReport.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace CleanerCore {

namespace {

/// What decides a candidate's place. Candidates are several hundred bytes each, so these are sorted in their stead.
struct SortKey {
    std::int64_t sizeBytes = 0;
    std::size_t index = 0;
    int safetyPriority = 0;

    bool operator<(const SortKey& other) const
    {
        if (safetyPriority != other.safetyPriority) {
            return safetyPriority < other.safetyPriority;
        }
        if (sizeBytes != other.sizeBytes) {
            return sizeBytes > other.sizeBytes;
        }
        return index < other.index;
    }
};

/// Brings the candidate `order[i].index` to place `i`, along the cycles of the permutation: each one moves once.
void apply(std::vector<SortKey>& order, std::vector<CleanupCandidate>& candidates)
{
    for (std::size_t start = 0; start < order.size(); ++start) {
        if (order[start].index == start) {
            continue;
        }
        auto displaced = std::move(candidates[start]);
        auto place = start;
        for (;;) {
            const auto source = std::exchange(order[place].index, place);
            if (source == start) {
                break;
            }
            candidates[place] = std::move(candidates[source]);
            place = source;
        }
        candidates[place] = std::move(displaced);
    }
}

void sortForReview(std::vector<CleanupCandidate>& candidates)
{
    std::vector<SortKey> order;
    order.reserve(candidates.size());
    for (const auto& candidate : candidates) {
        order.push_back({candidate.sizeBytes, order.size(), sortPriority(candidate.safety)});
    }
    if (!std::ranges::is_sorted(order, std::less<>())) {
        std::ranges::sort(order, std::less<>());
        apply(order, candidates);
    }
}

} // namespace

ScanReport ScanReport::empty()
{
    return {Platform::Date::now(), {}, {}};
}

ScanReport::ScanReport(
    Platform::Date scanDate, std::vector<CleanupCandidate> foundCandidates, std::vector<SkippedItem> foundSkippedItems)
    : scannedAt(scanDate)
    , candidates(std::move(foundCandidates))
    , skippedItems(std::move(foundSkippedItems))
{
    sortForReview(candidates);
}

std::int64_t ScanReport::reclaimableBytes() const
{
    return std::accumulate(
        candidates.begin(), candidates.end(), std::int64_t{0}, [](std::int64_t sum, const CleanupCandidate& candidate) {
            return Platform::checkedAdd(sum, candidate.sizeBytes);
        });
}

} // namespace CleanerCore
