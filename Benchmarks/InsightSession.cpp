// How long the insights session holds the main thread with ten thousand groups of duplicates: for a click, for a whole
// section, and for taking over what a scan brings. The scan is a real one, of a tree that is made for it.

#include "KarvelloUI/Sessions/JobThreads.h"
#include "KarvelloUI/Sessions/MacInsightsViewModel.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Platform/Services/FileUserDefaults.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <string>

namespace {

using namespace KarvelloUI;
using Clock = std::chrono::steady_clock;
using Platform::FileURL;

constexpr int kGroups = 10'000;

/// A home with two copies of each of many small files, gone at the end of the program.
struct Home {
    Home()
        : path((std::filesystem::temp_directory_path() / "karvello-insight-session-XXXXXX").string())
    {
        if (mkdtemp(path.data()) == nullptr) {
            std::abort();
        }
        for (const auto* const folder : {"Library", "Documents", "Downloads"}) {
            std::filesystem::create_directories(std::filesystem::path(path) / folder);
        }
        for (int number = 0; number < kGroups; ++number) {
            for (const auto* const folder : {"Documents", "Downloads"}) {
                std::ofstream(fmt::format("{}/{}/picture-{}.jpg", path, folder, number))
                    << fmt::format("{:08}", number);
            }
        }
    }
    ~Home() { std::filesystem::remove_all(path); }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    std::string path;
};

/// The session, with the report of a scan.
struct Subject {
    Subject() { longestTurnOfAScan(); }

    /// Seconds for which the event loop was held at the most, while a scan ran and was taken over.
    double longestTurnOfAScan()
    {
        session.scan(std::nullopt);
        Clock::duration longest{};
        while (session.isBusy()) {
            const auto begin = Clock::now();
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            longest = std::max(longest, Clock::now() - begin);
        }
        return std::chrono::duration<double>(longest).count();
    }

    Home home;
    Platform::PosixFileManager fileManager;
    Platform::LinuxTrash trash{fileManager, FileURL::folder(home.path + "/data")};
    Platform::LinuxBookmarks bookmarks;
    Platform::Environment environment{{{"HOME", home.path}}};
    Platform::FileUserDefaults defaults{fileManager, FileURL(home.path + "/preferences.json")};
    JobThreads threads;
    MacInsightsViewModel session{{.fileManager = fileManager,
                                     .trash = trash,
                                     .bookmarks = bookmarks,
                                     .environment = environment,
                                     .executor = threads},
        {.homeDirectory = FileURL::folder(home.path),
            .scannerConfiguration = CleanerCore::InsightConfiguration({
                .minimumLargeFileBytes = 1,
                .minimumDuplicateFileBytes = 1,
                .minimumReviewFileAge = 0,
                .maximumVisitedItemsPerRoot = 1'000'000,
                .maximumResultCount = 1'000'000,
                .maximumRecentReviewSkippedItems = 0,
                .maximumDuplicateHashFiles = 1'000'000,
                .maximumDuplicateFullHashBytesPerFile = 1 << 30,
                .maximumDuplicateHashBytes = 1 << 30,
            })},
        CleanerCore::CleanupAuditStore(fileManager, FileURL(home.path + "/log.json")),
        SystemMetricHistoryStore(defaults)};
};

void click(benchmark::State& state, Subject& subject)
{
    auto& session = subject.session;
    // Everything is selected but for what is clicked: the worst for whoever adds up what is selected.
    session.selectAll(MacInsightFileSection::duplicates);
    const auto files = session.selectableFiles(MacInsightFileSection::duplicates);
    if (files.size() != kGroups) {
        state.SkipWithError(fmt::format("only {} groups were found", files.size()).c_str());
        return;
    }
    const auto& file = *files[kGroups / 2];
    for (auto _ : state) {
        session.setSelected(file, !session.isSelected(file));
        benchmark::DoNotOptimize(session.duplicateSelectedBytes() + session.selectedBytes());
    }
    state.SetLabel(fmt::format("{} groups", session.duplicateReviewGroups().size()));
}

void selectAndClearAll(benchmark::State& state, Subject& subject)
{
    auto& session = subject.session;
    for (auto _ : state) {
        session.selectAll(MacInsightFileSection::duplicates);
        session.clearSelection(MacInsightFileSection::duplicates);
    }
}

void takeOverAScan(benchmark::State& state, Subject& subject)
{
    subject.session.selectAll(MacInsightFileSection::duplicates);
    for (auto _ : state) {
        state.SetIterationTime(subject.longestTurnOfAScan());
    }
}

/// Takes a sample of the machine, too.
void clearResults(benchmark::State& state, Subject& subject)
{
    for (auto _ : state) {
        subject.session.clearScanResults();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    Subject subject;
    const auto measure = [&](const char* name, void (*function)(benchmark::State&, Subject&)) {
        return benchmark::RegisterBenchmark(name, [&subject, function](auto& state) { function(state, subject); });
    };
    measure("click", click)->Unit(benchmark::kMicrosecond);
    measure("selectAndClearAll", selectAndClearAll)->Unit(benchmark::kMillisecond);
    measure("takeOverAScan", takeOverAScan)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);
    measure("clearResults", clearResults)->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks();
}
