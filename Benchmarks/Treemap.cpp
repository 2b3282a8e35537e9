#include "KarvelloUI/Design/StorageTreemapLayout.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <functional>
#include <limits>
#include <random>

namespace {

using CleanerCore::StorageMapItem;

std::vector<StorageMapItem> itemsOf(std::size_t count, const std::function<std::int64_t()>& size)
{
    std::vector<StorageMapItem> items;
    items.reserve(count);
    for (std::size_t number = 0; number < count; ++number) {
        const std::string name = fmt::format("a folder with a name of some length {}", number);
        items.emplace_back(StorageMapItem::Fields{.url = Platform::FileURL::folder("/home/somebody/" + name),
            .displayName = name,
            .sizeBytes = size(),
            .itemCount = 1});
    }
    return items;
}

void layOut(benchmark::State& state, const std::function<std::int64_t(std::mt19937_64&)>& size)
{
    std::mt19937_64 random(1);
    const auto items = itemsOf(static_cast<std::size_t>(state.range(0)), [&] { return size(random); });
    for (auto _ : state) {
        benchmark::DoNotOptimize(KarvelloUI::StorageTreemapLayout::cells(items));
    }
}

} // namespace

BENCHMARK_CAPTURE(layOut, random_sizes,
    [](std::mt19937_64& random) { return std::uniform_int_distribution<std::int64_t>(1, 1'000'000'000'000)(random); })
    ->Arg(60)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(layOut, equal_sizes, [](std::mt19937_64& /*random*/) { return std::int64_t{4096}; })
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(layOut, steep_sizes,
    [](std::mt19937_64& random) { return std::int64_t{1} << std::uniform_int_distribution(0, 49)(random); })
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(
    layOut, largest_sizes, [](std::mt19937_64& /*random*/) { return std::numeric_limits<std::int64_t>::max(); })
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond);
