#include "KarvelloUI/Copy/KarvelloEnglishCopyTranslations.h"

#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <fmt/format.h>

namespace {

using KarvelloUI::AppLanguage;
namespace Translations = KarvelloUI::KarvelloEnglishCopyTranslations;

constexpr std::array kLanguages{AppLanguage::japanese, AppLanguage::simplifiedChinese, AppLanguage::traditionalChinese,
    AppLanguage::spanish, AppLanguage::french, AppLanguage::german};

void translate(benchmark::State& state, const char* text)
{
    const AppLanguage language = kLanguages.at(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Translations::translate(text, language));
    }
    state.SetLabel(std::string(Platform::rawValue(language)));
}

} // namespace

BENCHMARK_CAPTURE(
    translate, exact_hit, "Review the app path, then move stale cache folders to Trash; apps can rebuild them.")
    ->DenseRange(0, 5, 5);
BENCHMARK_CAPTURE(translate, first_template, "3 of 12 reviewed")->DenseRange(0, 5, 5);
BENCHMARK_CAPTURE(translate, last_template, "1.5 GB · review before Trash move")->DenseRange(0, 5, 5);
BENCHMARK_CAPTURE(
    translate, path_template, "Location: /home/somebody/.cache/some application/with a longer path/entry.")
    ->DenseRange(0, 5, 5);
BENCHMARK_CAPTURE(translate, miss, "Free 12% · CPU 34%")->DenseRange(0, 5, 5);
BENCHMARK_CAPTURE(translate, long_miss,
    "Thermal pressure Serious · pause heavy work · and then some more words, items, and samples that no row knows, "
    "(all) of them")
    ->DenseRange(0, 5, 5);

int main(int argc, char** argv)
{
    // The first use of everything, which no other measurement can show: six languages, a whole sentence and a miss each.
    const auto start = std::chrono::steady_clock::now();
    for (const AppLanguage language : kLanguages) {
        benchmark::DoNotOptimize(Translations::translate("Reset checklist", language));
        benchmark::DoNotOptimize(Translations::translate("nobody wrote this", language));
    }
    const auto spent = std::chrono::steady_clock::now() - start;
    fmt::print("first use of all tables: {:.2f} ms\n", std::chrono::duration<double, std::milli>(spent).count());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
