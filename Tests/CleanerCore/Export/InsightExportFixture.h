#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "Tests/CleanerCore/Export/ExportFixture.h"

#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore::ExportFixture {

inline FileInsight insight(FileInsightKind kind, std::string_view path, std::int64_t size,
    std::optional<Platform::Date> lastModified, std::string detail)
{
    return FileInsight({
        .url = Platform::FileURL(path),
        .sizeBytes = size,
        .lastModified = lastModified,
        .resourceIdentity = FileResourceIdentity{.fileSize = size},
        .kind = kind,
        .detail = std::move(detail),
        .safety = safetyOf(kind),
    });
}

inline StorageMapItem folder(std::string_view path, std::string name, std::int64_t size, std::int64_t items)
{
    return StorageMapItem({
        .url = Platform::FileURL::folder(path),
        .displayName = std::move(name),
        .sizeBytes = size,
        .itemCount = items,
        .isTruncated = items > 10,
    });
}

/// One item for each thing that an export can get wrong.
inline MacStorageInsightReport insightReport()
{
    using enum FileInsightKind;
    const auto date = Platform::Date::fromUnixTime(1'700'000'000, 500'000'000);
    const std::string copies = "Duplicate set · 3 copies";
    const std::string disk = R"(/home/ada/Downloads/=SUM(A1), "x".iso)";
    return MacStorageInsightReport({
        .scannedAt = kScannedAt,
        .heatmapItems =
            {
                folder("/home/ada/Documents", "~/Documents", 0, 0),
                folder("/home/ada/Videos", "~/Videos", 1'500'000'000, 1),
                folder("/home/ada/Downloads", "~/Downloads", 5'000'000'000, 12),
            },
        .largeFiles =
            {
                insight(largeFile, "/home/ada/Videos/caf\xE9.mkv", 1'500'000'000, {}, "Large file"),
                insight(largeFile, disk, 2'000'000'000, date, "Large file"),
            },
        .downloadFiles =
            {
                insight(download, "/home/ada/Downloads/line\nbreak", 10, Platform::Date::fromUnixTime(-1),
                    "Downloads item"),
                insight(download, disk, 2'000'000'000, date, "Downloads item"),
            },
        .duplicateGroups =
            {
                DuplicateFileGroup("0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef", 30'000'000,
                    {
                        insight(duplicate, "/home/ada/Downloads/a.raw", 30'003'200, Platform::Date::fromUnixTime(-1),
                            copies),
                        insight(duplicate, "/home/ada/Pictures/b.raw", 30'003'200, date.addingSeconds(1), copies),
                        insight(duplicate, "/home/ada/Pictures/a.raw", 30'003'200, date, copies),
                    }),
            },
        .securityFindings =
            {
                insight(securitySignal, "/home/ada/Downloads/odd.pkg", 0, {}, "See ~/Downloads/odd.pkg"),
                insight(securitySignal, "/home/ada/Downloads/setup.sh", 4096, date, "Shell script"),
            },
        .skippedItems =
            {
                {Platform::FileURL("/home/ada/Downloads/new.iso"), "Recently modified"},
                {Platform::FileURL::folder("/home/ada/Documents"), "Could not read /home/ada/Documents"},
            },
        .isTruncated = true,
        .systemSnapshot =
            {
                .capturedAt = kScannedAt.addingSeconds(0.877),
                .physicalMemoryBytes = 16'000'000'000,
                .usedMemoryBytes = 4'000'000'001,
                .memoryPressure = "Normal",
                .cpuLoadAverage = 0.52,
                .normalizedCPULoad = 0.13,
                .processorCount = 4,
                .activeProcessorCount = 2,
                .thermalState = "Nominal",
                .uptime = 86'400.25,
                .temperatureDetail = "Sensors at /sys/class/thermal, not read",
            },
    });
}

/// One id of each list of files, and three that select nothing: the other id of a file, a folder of the map, and one
/// that no list holds.
inline SelectedIDs selectedInsights()
{
    return {R"(largeFile:/home/ada/Downloads/=SUM(A1), "x".iso)", "download:/home/ada/Downloads/line\nbreak",
        "duplicate:/home/ada/Pictures/b.raw", "securitySignal:/home/ada/Downloads/odd.pkg",
        "duplicate:/home/ada/Downloads/odd.pkg", "/home/ada/Videos", "largeFile:/not/in/the/report"};
}

} // namespace CleanerCore::ExportFixture
