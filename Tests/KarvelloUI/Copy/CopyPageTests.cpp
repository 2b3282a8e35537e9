#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

#include "KarvelloUI/Copy/ReplaceAll.h"
#include "Tests/KarvelloUI/Copy/GoldenPage.h"

#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

constexpr const char* kPath = KARVELLO_SOURCE_DIR "/Tests/Golden/copy.txt";

std::string textsOn(CopyHost host, const CatalogueSample& sample)
{
    std::string lines;
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        std::string text = sample.text({{{language, host}}});
        replaceAll(text, "\n", "\\n");
        lines += fmt::format("  {:<8}{}\n", Platform::rawValue(language), text);
    }
    return lines;
}

bool saysItsOwnOnLinux(const CatalogueSample& sample)
{
    return textsOn(CopyHost::mac, sample) != textsOn(CopyHost::linuxDesktop, sample);
}

/// Every text in every language, to be read as a whole.
std::string copyPage()
{
    std::string page = "# Every text of the catalogue, with sample values, in every language. "
                       "scripts/write-copy-page writes it.\n";
    for (const auto& [theme, samples] : catalogueSamples()) {
        page += fmt::format("\n== {} ==\n", theme);
        for (const CatalogueSample& sample : samples) {
            const bool isInTable =
                sample.coverage != SampleCoverage::staysEnglish && sample.coverage != SampleCoverage::own;
            page += fmt::format("\n{}{}\n", sample.name, isInTable ? "" : " (in no table)");
            page += textsOn(CopyHost::mac, sample);
            if (saysItsOwnOnLinux(sample)) {
                page += "  on Linux:\n" + textsOn(CopyHost::linuxDesktop, sample);
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
