// Measures what saving one preference costs, with and without the wait for the disk.
//
//     karvello-save-defaults FOLDER [options of Google Benchmark]
//
// FOLDER is an empty folder to work in. Each measurement is one save into a document of so many keys, of which every
// tenth holds 4 KiB of data. Saves are 5 ms apart, outside of the measurement: one that follows another within a
// millisecond lets other processes have the lock first.

#include "Platform/Files/AtomicFile.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Services/FileUserDefaults.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>
#include <string>
#include <thread>
#include <vector>

namespace {

using Platform::WriteDurability;

/// Writes with or without the final sync.
class BenchmarkedFiles final : public TestSupport::ForwardingFileManager {
public:
    BenchmarkedFiles(const Platform::FileManager& inner, WriteDurability durability)
        : ForwardingFileManager(inner)
        , m_durability(durability)
    {
    }

    [[nodiscard]] std::expected<void, Platform::FileError> writeAtomically(
        std::string_view bytes, const Platform::FileURL& url) const override
    {
        return Platform::replaceFile(url, bytes, m_durability);
    }

private:
    WriteDurability m_durability;
};

std::vector<Platform::DefaultsChange> documentOf(std::int64_t keyCount)
{
    constexpr int kEvery = 10;
    std::vector<Platform::DefaultsChange> changes;
    for (std::int64_t index = 0; index < keyCount; ++index) {
        auto key = fmt::format("karvello.key{}", index);
        if (index % kEvery == 0) {
            changes.push_back({std::move(key), Platform::DefaultsData{std::string(4096, '\x5A')}});
        } else {
            changes.push_back({std::move(key), std::string("a preference")});
        }
    }
    return changes;
}

void save(benchmark::State& state, const Platform::FileURL& folder, WriteDurability durability)
{
    const Platform::PosixFileManager posix;
    const BenchmarkedFiles files(posix, durability);
    const auto url = folder.appending(fmt::format("preferences-{}.json", state.range(0)));
    Platform::FileUserDefaults defaults(files, url);
    if (!defaults.apply(documentOf(state.range(0)))) {
        state.SkipWithError("cannot write");
        return;
    }
    std::int64_t step = 0;
    for (auto _ : state) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        const auto start = std::chrono::steady_clock::now();
        const bool isSaved = defaults.set("karvello.step", ++step).has_value();
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
        if (!isSaved) {
            state.SkipWithError("cannot write");
            return;
        }
        state.SetIterationTime(passed.count());
    }
    state.counters["bytes"] = static_cast<double>(posix.readFile(url, SIZE_MAX / 2).value_or("").size());
}

} // namespace

int main(int count, char** arguments)
{
    benchmark::Initialize(&count, arguments);
    if (count != 2) {
        std::fputs("usage: karvello-save-defaults FOLDER [options of Google Benchmark]\n", stderr);
        return 2;
    }
    const auto folder = Platform::FileURL::folder(arguments[1]);
    for (const auto& [name, durability] :
        {std::pair("withoutSync", WriteDurability::leftToSystem), std::pair("withSync", WriteDurability::onDisk)}) {
        benchmark::RegisterBenchmark(
            name, [&folder, durability](benchmark::State& state) { save(state, folder, durability); })
            ->Arg(10)
            ->Arg(100)
            ->Arg(1000)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(200);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
