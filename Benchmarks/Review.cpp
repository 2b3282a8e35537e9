// How long the main thread is busy with a click or a keystroke in a large review.

#include "KarvelloUI/Sessions/CandidateListModel.h"
#include "KarvelloUI/Sessions/CandidateReview.h"
#include "KarvelloUI/Sessions/DuplicateReviewSnapshot.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

namespace {

using namespace KarvelloUI;
using CleanerCore::CleanupCandidate;

constexpr int kCandidates = 100'000;
constexpr int kGroups = 10'000;
constexpr KarvelloCopy kCopy{AppLanguage::german};

/// Paths of the usual length, every tenth with an accent.
CleanerCore::ScanReport largeReport()
{
    std::vector<CleanupCandidate> candidates;
    candidates.reserve(kCandidates);
    for (int number = 0; number < kCandidates; ++number) {
        candidates.push_back(CleanupCandidate(
            {.url = Platform::FileURL(fmt::format("/home/somebody/.cache/application-{}/{}/entry-{:08x}", number % 300,
                 number % 10 == 0 ? "Café" : "http-cache", number)),
                .category = static_cast<CleanerCore::CleanupCategory>(number % 13),
                .sizeBytes = number * 4096LL,
                .isSelectedByDefault = number % 2 == 0,
                .safety = static_cast<CleanerCore::CleanupSafety>(number % 3)}));
    }
    return {Platform::Date{700'000'000}, std::move(candidates), {}};
}

/// A session's review with its list on show.
struct Review {
    Review()
    {
        review.apply(std::make_shared<const CandidateIndex>(largeReport()), CandidateReview::Filters::reset);
        review.selection().selectDefaults();
        show({});
    }

    void show(CandidateListFilters filters)
    {
        review.setFilters(std::move(filters));
        model.show(review.selection().sharedIndex(), review.visibleCandidateSections(kCopy), kCopy);
    }

    CandidateReview review;
    CandidateListModel model{review.selection()};
};

void makeIndex(benchmark::State& state)
{
    const auto report = largeReport();
    for (auto _ : state) {
        auto copy = report;
        benchmark::DoNotOptimize(CandidateIndex(std::move(copy)).size());
    }
}

void applyReport(benchmark::State& state)
{
    Review review;
    const auto index = std::make_shared<const CandidateIndex>(largeReport());
    for (auto _ : state) {
        review.review.apply(index, CandidateReview::Filters::reset);
        review.review.selection().selectDefaults();
        review.show({});
    }
}

/// From all rows to those that match, and back: two keystrokes.
void search(benchmark::State& state, std::string text, CandidateListGroupingMode mode)
{
    Review review;
    for (auto _ : state) {
        review.show({.searchText = text, .groupingMode = mode});
        benchmark::DoNotOptimize(review.model.count());
        state.PauseTiming();
        review.show({.groupingMode = mode});
        state.ResumeTiming();
    }
    review.show({.searchText = text, .groupingMode = mode});
    state.SetLabel(fmt::format("{} rows left", review.model.count()));
}

void filterCategory(benchmark::State& state)
{
    Review review;
    int category = 0;
    for (auto _ : state) {
        review.show({.category = static_cast<CleanerCore::CleanupCategory>(++category % 13)});
    }
}

void changeGrouping(benchmark::State& state)
{
    Review review;
    int mode = 0;
    for (auto _ : state) {
        review.show({.groupingMode = static_cast<CandidateListGroupingMode>(++mode % 3)});
    }
}

void selectAll(benchmark::State& state)
{
    Review review;
    for (auto _ : state) {
        review.review.selection().selectAll();
        review.model.announceSelection();
        benchmark::DoNotOptimize(review.model.hiddenSelectedCount());
    }
}

void click(benchmark::State& state)
{
    Review review;
    const auto id = review.review.index().candidates()[kCandidates / 2].id;
    for (auto _ : state) {
        review.review.selection().setSelected(id, !review.review.selection().isSelected(id));
        review.model.announceSelection(id);
        benchmark::DoNotOptimize(review.model.hiddenSelectedCount());
    }
}

void clickDuplicate(benchmark::State& state)
{
    std::vector<CleanerCore::DuplicateFileGroup> groups;
    std::unordered_set<std::string> selectable;
    for (int number = 0; number < kGroups; ++number) {
        std::vector<CleanerCore::FileInsight> copies;
        for (int copy = 0; copy < 3; ++copy) {
            copies.push_back(CleanerCore::FileInsight(
                {.url = Platform::FileURL(fmt::format("/home/somebody/Pictures/{}/picture-{}.jpg", copy, number)),
                    .sizeBytes = 4096,
                    .kind = CleanerCore::FileInsightKind::duplicate,
                    .detail = "Duplicate set"}));
        }
        groups.emplace_back(fmt::format("{:064x}", number), 4000, std::move(copies));
        for (const auto& extra : groups.back().extraCopies()) {
            selectable.insert(extra.id);
        }
    }
    // Everything is selected but for what is clicked: the worst for whoever adds up what is selected.
    auto selected = selectable;
    const auto id = groups[kGroups / 2].files[1].id;
    DuplicateReviewSnapshot snapshot(
        std::make_shared<const std::vector<CleanerCore::DuplicateFileGroup>>(groups), {selectable, selected});
    for (auto _ : state) {
        if (selected.erase(id) == 0) {
            selected.insert(id);
        }
        benchmark::DoNotOptimize(snapshot.refresh({&id, 1}, {selectable, selected}));
        benchmark::DoNotOptimize(snapshot.selectedBytes());
    }
}

} // namespace

BENCHMARK(makeIndex)->Unit(benchmark::kMillisecond);
BENCHMARK(applyReport)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, few, "entry-00000a", CandidateListGroupingMode::flat)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, one_letter, "c", CandidateListGroupingMode::flat)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, scattered, "7 café", CandidateListGroupingMode::category)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, none, "nowhere to be found", CandidateListGroupingMode::safety)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(filterCategory)->Unit(benchmark::kMillisecond);
BENCHMARK(changeGrouping)->Unit(benchmark::kMillisecond);
BENCHMARK(selectAll)->Unit(benchmark::kMillisecond);
BENCHMARK(click)->Unit(benchmark::kMicrosecond);
BENCHMARK(clickDuplicate)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
