// The walk of an insight scan over one folder, without a limit and without the lists.
//
//     karvello-insight-walk FOLDER [JOBS]

#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/HomeDirectory.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <limits>

int main(int count, char** arguments)
{
    if (count < 2 || count > 3) {
        std::fputs("usage: karvello-insight-walk FOLDER [JOBS]\n", stderr);
        return EXIT_FAILURE;
    }
    constexpr auto unlimited = std::numeric_limits<std::int64_t>::max() / 2;
    auto limits = CleanerCore::InsightConfiguration::standard();
    limits.maximumVisitedItemsPerRoot = unlimited;
    const Platform::PosixFileManager fileManager;
    const CleanerCore::MacStorageInsightScanner scanner(Platform::homeDirectoryForCurrentUser(), fileManager, limits,
        {
            .roots = {{Platform::FileURL::folder(arguments[1])}},
            .analyses = {.largeFiles = true, .downloads = false, .duplicates = false, .securityFindings = true},
            .jobs = count > 2 ? static_cast<unsigned>(std::strtoul(arguments[2], nullptr, 10)) : 0,
        });
    const auto report = scanner.scan(Platform::Date::now());
    for (const auto& item : report.heatmapItems) {
        std::printf("%" PRId64 " items, %" PRId64 " bytes\n", item.itemCount, item.sizeBytes);
    }
    for (const auto& item : report.skippedItems) {
        std::fprintf(stderr, "%s\n", item.reason.c_str());
    }
    return report.skippedItems.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
