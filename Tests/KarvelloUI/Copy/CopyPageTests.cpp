#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include "KarvelloUI/Copy/ReplaceAll.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

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
    const std::string page = copyPage();
    if (std::getenv("KARVELLO_WRITE_COPY_PAGE") != nullptr) {
        std::ofstream(kPath) << page;
    }
    std::ifstream file(kPath);
    EXPECT_EQ(page, std::string(std::istreambuf_iterator<char>(file), {})) << "scripts/write-copy-page writes it anew";
}

} // namespace
} // namespace KarvelloUI
