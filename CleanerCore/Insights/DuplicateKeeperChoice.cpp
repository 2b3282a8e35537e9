#include "CleanerCore/Insights/DuplicateKeeperChoice.h"

#include "CleanerCore/Insights/ReviewOrder.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace CleanerCore {

namespace {

struct RankedFolder {
    std::string_view name;
    int rank;
};

/// In the order in which they decide: a `Library` inside `Documents` is a document.
constexpr std::array<RankedFolder, 7> kRankedFolders{{
    {.name = "Documents", .rank = 0},
    {.name = "Pictures", .rank = 1},
    {.name = "Movies", .rank = 1},
    {.name = "Music", .rank = 1},
    {.name = "Desktop", .rank = 2},
    {.name = "Downloads", .rank = 3},
    {.name = "Library", .rank = 4},
}};
constexpr int kRankElsewhere = 2;

} // namespace

int keeperLocationRank(const Platform::FileURL& url)
{
    const auto components = url.pathComponents();
    for (const auto& folder : kRankedFolders) {
        if (std::ranges::find(components, folder.name) != components.end()) {
            return folder.rank;
        }
    }
    return kRankElsewhere;
}

bool prefersKeeper(const FileInsight& file, const FileInsight& other)
{
    if (const int rank = keeperLocationRank(file.url), otherRank = keeperLocationRank(other.url); rank != otherRank) {
        return rank < otherRank;
    }
    if (const auto date = reviewDate(file.lastModified), otherDate = reviewDate(other.lastModified);
        date != otherDate) {
        return date < otherDate;
    }
    return file.url.path() < other.url.path();
}

std::vector<DuplicateKeeperRecommendationReason> keeperRecommendationReasons(
    const FileInsight& keeper, std::span<const FileInsight> files)
{
    using enum DuplicateKeeperRecommendationReason;
    const int keeperRank = keeperLocationRank(keeper.url);
    const auto keeperDate = reviewDate(keeper.lastModified);
    bool isBetterPlaced = false;
    bool isOlder = false;
    bool isFirstByPath = false;
    for (const auto& file : files) {
        if (file.id == keeper.id) {
            continue;
        }
        const int rank = keeperLocationRank(file.url);
        const auto date = reviewDate(file.lastModified);
        if (rank != keeperRank) {
            isBetterPlaced = isBetterPlaced || rank > keeperRank;
        } else if (date != keeperDate) {
            isOlder = isOlder || date > keeperDate;
        } else {
            isFirstByPath = isFirstByPath || keeper.url.path() < file.url.path();
        }
    }
    std::vector<DuplicateKeeperRecommendationReason> reasons;
    if (isBetterPlaced) {
        reasons.push_back(preferredLocation);
    }
    if (isOlder) {
        reasons.push_back(olderModificationDate);
    }
    if (isFirstByPath || reasons.empty()) {
        reasons.push_back(deterministicPathTieBreak);
    }
    return reasons;
}

} // namespace CleanerCore
