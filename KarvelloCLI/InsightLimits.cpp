#include "KarvelloCLI/InsightLimits.h"

#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "KarvelloCLI/Say.h"

#include <algorithm>

namespace KarvelloCLI {

namespace {

namespace Reason = CleanerCore::StorageScannerSkipReason;

std::size_t countOfReason(const CleanerCore::MacStorageInsightReport& report, std::string_view reason)
{
    return static_cast<std::size_t>(std::ranges::count(report.skippedItems, reason, &CleanerCore::SkippedItem::reason));
}

/// The lists that are as long as a list may be, so that there may be more.
std::vector<std::string> fullLists(const CleanerCore::MacStorageInsightReport& report, std::size_t most)
{
    std::vector<std::string> lists;
    const auto look = [&](const auto& list, std::string name) {
        if (list.size() >= most) {
            lists.push_back(std::move(name));
        }
    };
    look(report.largeFiles, say("large files"));
    look(report.downloadFiles, say("downloads"));
    look(report.duplicateGroups, say("duplicates"));
    look(report.securityFindings, say("installers and scripts"));
    return lists;
}

std::string duplicateSentence(
    const CleanerCore::MacStorageInsightReport& report, const InsightSubject& subject, const TextStyle& style)
{
    const auto& limits = subject.configuration;
    if (const std::size_t count = countOfReason(report, Reason::duplicateHashBudgetExceeded); count > 0) {
        return counted(count,
            "{} file above {} of the same size as others was not read, and no smaller files were compared. "
            "--max-hash-file-bytes goes further, and --max-hash-bytes with it.",
            "{} files above {} of the same size as others were not read, and no smaller files were compared. "
            "--max-hash-file-bytes goes further, and --max-hash-bytes with it.",
            style.size(limits.maximumDuplicateFullHashBytesPerFile));
    }
    return say("The search for duplicates ended before the smallest files: it reads at most {} and {} whole, "
               "and of one size it takes {}. --max-hash-files, --max-hash-bytes and --max-results go further.",
        fileCount(static_cast<std::size_t>(limits.maximumDuplicateHashFiles)),
        style.size(limits.maximumDuplicateHashBytes), fileCount(static_cast<std::size_t>(limits.maximumResultCount)));
}

} // namespace

std::vector<std::string> limitSentences(
    const CleanerCore::MacStorageInsightReport& report, const InsightSubject& subject, const TextStyle& style)
{
    const auto& limits = subject.configuration;
    std::vector<std::string> sentences;
    if (subject.cuts.visits) {
        const auto most = limits.maximumVisitedItemsPerRoot;
        sentences.push_back(report.heatmapItems.empty()
                ? say("Not every item was visited, so there may be more of everything: a folder gets {} visits, and "
                      "the "
                      "insides of packages as many in all. --max-visits goes further.",
                      most)
                : say("Not every item was visited, so there may be more of everything in the folders marked >: a "
                      "folder "
                      "gets {} visits, and the insides of packages as many in all. --max-visits goes further.",
                      most));
    }
    if (subject.cuts.recentFiles) {
        sentences.push_back(say("More files changed too lately to be listed than the {} that are named. "
                                "--max-recent names more, and --min-age 0 lists them all.",
            limits.maximumRecentReviewSkippedItems));
    }
    if (subject.cuts.duplicates) {
        sentences.push_back(duplicateSentence(report, subject, style));
    }
    const auto full = fullLists(report, static_cast<std::size_t>(limits.maximumResultCount));
    if (!full.empty()) {
        sentences.push_back(say("No list gets longer than {}; there may be more {}. --max-results goes further.",
            limits.maximumResultCount, joined(full)));
    }
    return sentences;
}

} // namespace KarvelloCLI
