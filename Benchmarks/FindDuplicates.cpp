// Finds the duplicates below a folder with all limits raised and prints them as other programs do: the paths of a group
// one to a line, a blank line behind each group.
//
//     karvello-find-duplicates FOLDER [JOBS]

#include "CleanerCore/Insights/DuplicateFinder.h"
#include "Platform/Files/PosixFileManager.h"

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using CleanerCore::FileRecord;

std::vector<FileRecord> recordsBelow(const Platform::FileManager& fileManager, const Platform::FileURL& folder)
{
    std::vector<FileRecord> records;
    std::shared_ptr<const std::string> folderPath;
    const auto items = fileManager.enumerator(folder, {}, [](const Platform::FileURL& url, const auto& error) {
        std::fprintf(stderr, "%s: %s\n", url.path().c_str(), error.localizedDescription().c_str());
        return Platform::EnumerationErrorAnswer::goOn;
    });
    while (items && items->next()) {
        const auto& values = items->resourceValues();
        if (!values || !values->isRegularFile.value_or(false) || values->fileSize.value_or(0) < 1) {
            continue;
        }
        auto parent = items->url().deletingLastPathComponent().path();
        if (!folderPath || *folderPath != parent) {
            folderPath = std::make_shared<const std::string>(std::move(parent));
        }
        FileRecord record(folderPath, items->name());
        record.allocatedSizeBytes = values->totalFileAllocatedSize.value_or(0);
        record.logicalSizeBytes = *values->fileSize;
        record.lastModified = values->contentModificationDate;
        record.fileNumber = values->systemFileNumber.value_or(0);
        record.deviceNumber = values->systemNumber.value_or(0);
        records.push_back(std::move(record));
    }
    return records;
}

CleanerCore::InsightConfiguration withoutLimits()
{
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    return CleanerCore::InsightConfiguration({
        .minimumLargeFileBytes = 1,
        .minimumDuplicateFileBytes = 1,
        .minimumReviewFileAge = 0,
        .maximumVisitedItemsPerRoot = most,
        .maximumResultCount = 1'000'000,
        .maximumRecentReviewSkippedItems = 0,
        .maximumDuplicateHashFiles = most,
        .maximumDuplicateFullHashBytesPerFile = most,
        .maximumDuplicateHashBytes = most,
    });
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 2) {
        std::fputs("usage: karvello-find-duplicates FOLDER [JOBS]\n", stderr);
        return 2;
    }
    const Platform::PosixFileManager fileManager;
    const auto jobs = count > 2 ? static_cast<unsigned>(std::strtoul(arguments[2], nullptr, 10))
                                : std::thread::hardware_concurrency();
    const auto records = recordsBelow(fileManager, Platform::FileURL::folder(arguments[1]));
    std::vector<CleanerCore::SkippedItem> skipped;
    const auto result = CleanerCore::DuplicateFinder(withoutLimits(), fileManager, jobs).find(records, skipped);
    for (const auto& group : result.groups) {
        for (const auto& file : group.files) {
            std::puts(file.url.path().c_str());
        }
        std::puts("");
    }
    for (const auto& item : skipped) {
        std::fprintf(stderr, "%s: %s\n", item.url.path().c_str(), item.reason.c_str());
    }
    return skipped.empty() && !result.isTruncated ? 0 : 1;
}
