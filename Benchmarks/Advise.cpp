// How long the dashboard's home takes to think: what to review first, and the story of the disk, for a report of 100,000
// candidates and a full audit log.

#include "KarvelloUI/Advisors/AuditReports.h"
#include "KarvelloUI/Advisors/SmartCleanupCoach.h"
#include "KarvelloUI/Advisors/StorageTrendTimeline.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using CleanerCore::CleanupAuditEntry;

constexpr KarvelloUI::DiskCapacitySnapshot kDisk{.totalBytes = 1'000'000'000'000, .freeBytes = 100'000'000'000};

CleanerCore::ScanReport cleanupReport(std::int64_t candidateCount)
{
    std::vector<CleanerCore::CleanupCandidate> candidates;
    for (std::int64_t index = 0; index < candidateCount; ++index) {
        candidates.emplace_back(CleanerCore::CleanupCandidate::Fields{
            .url = Platform::FileURL(fmt::format("/home/ada/.cache/com.example.application-{}", index)),
            .sizeBytes = 4096 * (index % 977)});
    }
    return {{}, std::move(candidates), {}};
}

/// The lists of an insight scan are short whatever the disk holds.
CleanerCore::MacStorageInsightReport insightReport()
{
    CleanerCore::MacStorageInsightReport::Fields fields{.scannedAt = {}};
    for (std::int64_t index = 0; index < 500; ++index) {
        fields.largeFiles.emplace_back(
            CleanerCore::FileInsight::Fields{.url = Platform::FileURL(fmt::format("/home/ada/Videos/{}", index)),
                .sizeBytes = index << 24,
                .detail = ""});
    }
    fields.downloadFiles = fields.largeFiles;
    return CleanerCore::MacStorageInsightReport(std::move(fields));
}

CleanerCore::CleanedItem item(std::int64_t index)
{
    CleanerCore::CleanedItem cleaned;
    const auto name = fmt::format("com.example.application-{}", index % 300);
    cleaned.candidate = CleanerCore::CleanupCandidate(
        {.url = Platform::FileURL("/home/ada/.cache/" + name), .sizeBytes = 4096 + index * index % 1'000'003});
    cleaned.destinationURL = Platform::FileURL("/home/ada/.local/share/Trash/files/" + name);
    return cleaned;
}

enum class Form : std::uint8_t { withPaths, stored };

/// Two moves of 20 items each for every restore of 7 of them.
std::vector<CleanupAuditEntry> auditEntries(std::int64_t count, Form form)
{
    std::vector<CleanupAuditEntry> entries;
    for (std::int64_t index = 0; index < count; ++index) {
        const Platform::Date date{static_cast<double>(index)};
        if (index % 3 != 2) {
            CleanerCore::CleanResult result;
            for (std::int64_t each = 0; each < 20; ++each) {
                result.cleanedItems.push_back(item(index * 20 + each));
            }
            entries.push_back(CleanupAuditEntry::clean(result, CleanerCore::CleaningMode::moveToTrash, {},
                CleanerCore::CleanupAuditSource::cleanupDashboard, date));
        } else {
            CleanerCore::RestoreResult result;
            for (std::int64_t each = 0; each < 7; ++each) {
                const auto cleaned = item((index - index % 2 - 1) * 20 + each * 2);
                result.restoredItems.push_back({cleaned, cleaned.candidate.url});
            }
            entries.push_back(
                CleanupAuditEntry::restore(result, {}, CleanerCore::CleanupAuditSource::cleanupDashboard, date));
        }
        if (form == Form::stored) {
            entries.back() = entries.back().storageSafeForAuditPersistence();
        }
    }
    return entries;
}

void recommendations(benchmark::State& state)
{
    const auto cleanup = cleanupReport(state.range(0));
    const auto insights = insightReport();
    for (auto _ : state) {
        benchmark::DoNotOptimize(KarvelloUI::SmartCleanupCoach::recommendations(
            cleanup, insights, kDisk, {}, KarvelloUI::AppLanguage::german));
    }
}

void timeline(benchmark::State& state, Form form)
{
    const auto cleanup = cleanupReport(state.range(0));
    const auto insights = insightReport();
    const auto entries = auditEntries(state.range(1), form);
    for (auto _ : state) {
        benchmark::DoNotOptimize(KarvelloUI::StorageTrendTimeline::of(kDisk, cleanup, insights, entries));
    }
}

void recommendations_and_timeline(benchmark::State& state)
{
    const auto cleanup = cleanupReport(state.range(0));
    const auto insights = insightReport();
    const auto entries = auditEntries(state.range(1), Form::stored);
    for (auto _ : state) {
        benchmark::DoNotOptimize(KarvelloUI::SmartCleanupCoach::recommendations(
            cleanup, insights, kDisk, {}, KarvelloUI::AppLanguage::german));
        benchmark::DoNotOptimize(KarvelloUI::StorageTrendTimeline::of(kDisk, cleanup, insights, entries));
    }
}

void pairing(benchmark::State& state, Form form)
{
    const auto entries = auditEntries(state.range(0), form);
    for (auto _ : state) {
        benchmark::DoNotOptimize(KarvelloUI::auditReportsLessRestores(entries));
    }
}

} // namespace

BENCHMARK(recommendations)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(timeline, with_paths, Form::withPaths)->Args({100'000, 100})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(timeline, stored, Form::stored)->Args({100'000, 100})->Unit(benchmark::kMillisecond);
BENCHMARK(recommendations_and_timeline)->Args({100'000, 100})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pairing, with_paths, Form::withPaths)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(pairing, stored, Form::stored)->Arg(100)->Arg(1000)->Arg(10'000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
