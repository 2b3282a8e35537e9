#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include "KarvelloUI/Copy/ReplaceAll.h"
#include "Tests/KarvelloUI/Copy/GoldenPage.h"

#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

constexpr const char* kPath = KARVELLO_SOURCE_DIR "/Tests/Golden/copy.txt";

/// Every text in every language, to be read as a whole.
std::string copyPage()
{
    std::string page = "# Every text of the catalogue, with sample values, in every language. "
                       "scripts/write-copy-page writes it.\n";
    for (const auto& [theme, samples] : catalogueSamples()) {
        page += fmt::format("\n== {} ==\n", theme);
        for (const CatalogueSample& sample : samples) {
            page += fmt::format(
                "\n{}{}\n", sample.name, sample.coverage == SampleCoverage::staysEnglish ? " (in no table)" : "");
            for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
                std::string text = sample.text({language});
                replaceAll(text, "\n", "\\n");
                page += fmt::format("  {:<8}{}\n", Platform::rawValue(language), text);
            }
        }
    }
    return page;
}

TEST(CopyPage, IsWhatTheCatalogueSays)
{
    expectGolden(copyPage(), kPath);
}

} // namespace
} // namespace KarvelloUI
