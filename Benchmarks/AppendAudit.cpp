// Measures what an append to a full audit log costs, with and without the wait for the disk.
//
//     karvello-append-audit FOLDER
//
// FOLDER is an empty folder to work in. Prints, for logs of 100 entries with as many items each as the column says, the
// bytes of the log and the median of 50 appends in milliseconds: all but the write, and all.

#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <tuple>
#include <vector>

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;
using std::chrono::steady_clock;

/// Counts the time that passes in writes.
class TimedWrites final : public TestSupport::ForwardingFileManager {
public:
    using ForwardingFileManager::ForwardingFileManager;

    [[nodiscard]] std::expected<void, Platform::FileError> writeAtomically(
        std::string_view bytes, const Platform::FileURL& url) const override
    {
        const auto start = steady_clock::now();
        auto written = inner().writeAtomically(bytes, url);
        lastWrite = steady_clock::now() - start;
        lastSize = bytes.size();
        return written;
    }

    mutable Milliseconds lastWrite{};
    mutable std::size_t lastSize = 0;
};

CleanerCore::CleanupAuditEntry entryOf(int itemCount)
{
    CleanerCore::CleanResult result;
    const auto trash = Platform::FileURL::folder("/home/ada/.local/share/Trash/files");
    for (int index = 0; index < itemCount; ++index) {
        const auto name = "com.example.application-" + std::to_string(index);
        CleanerCore::CleanedItem item;
        item.candidate = CleanerCore::CleanupCandidate({.url = Platform::FileURL::folder("/home/ada/.cache/" + name),
            .category = CleanerCore::CleanupCategory::userCaches,
            .sizeBytes = 123'456'789,
            .lastModified = Platform::Date::now(),
            .safety = CleanerCore::CleanupSafety::safe});
        item.destinationURL = trash.appending(name);
        item.restoreSourceRootURL = trash;
        item.restoreSourceIdentity = CleanerCore::FileResourceIdentity{
            .fileResourceIdentifier = "0123456789abcdef01234567", .creationDate = Platform::Date::now()};
        result.cleanedItems.push_back(item);
    }
    return CleanerCore::CleanupAuditEntry::clean(result, CleanerCore::CleaningMode::moveToTrash, {},
        CleanerCore::CleanupAuditSource::cleanupDashboard, Platform::Date::now());
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

void measure(const Platform::FileURL& folder, int itemCount)
{
    constexpr int kAppends = 50;
    const Platform::PosixFileManager posix;
    const TimedWrites fileManager(posix);
    const CleanerCore::CleanupAuditStore store(
        fileManager, folder.appending("cleanup-audit-log-" + std::to_string(itemCount) + ".json"));
    store.replaceEntries(std::vector(100, entryOf(itemCount)), 100);
    std::vector<double> withoutWrite;
    std::vector<double> whole;
    std::size_t count = 0;
    for (int index = 0; index < kAppends; ++index) {
        const auto entry = entryOf(itemCount);
        const auto start = steady_clock::now();
        count = store.append(entry).size();
        const Milliseconds passed = steady_clock::now() - start;
        withoutWrite.push_back((passed - fileManager.lastWrite).count());
        whole.push_back(passed.count());
    }
    std::printf(
        "%5d %7zu %8zu %13.2f %9.2f\n", itemCount, count, fileManager.lastSize, median(withoutWrite), median(whole));
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fputs("usage: karvello-append-audit FOLDER\n", stderr);
        return 2;
    }
    std::puts("items entries    bytes without write     whole");
    for (const int itemCount : {0, 1, 5, 10}) {
        measure(Platform::FileURL::folder(arguments[1]), itemCount);
    }
    return 0;
}
