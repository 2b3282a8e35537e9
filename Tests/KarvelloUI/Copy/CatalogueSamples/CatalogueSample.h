#pragma once

#include "KarvelloUI/Copy/KarvelloCopy.h"

#include <cstdint>
#include <fmt/format.h>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// What the six languages of the tables make of a sample.
enum class SampleCoverage : std::uint8_t {
    translated,
    /// Put together from texts that are looked up one by one; no row is for the whole.
    assembled,
    /// Not every language has a row for the sentence: the catalogue's own texts have it.
    own,
    /// No table has it, since there is nothing in it to translate, or since it is not known.
    staysEnglish,
    /// Half of a member that chooses: for Korean alone, and for all others, put together like `assembled`.
    onlyKorean,
    neverKorean,
};

/// One text of the catalogue with sample values in it.
struct CatalogueSample {
    /// The member, and behind a space what sets this sample apart from its others: "auditEntrySummary cancelled".
    std::string name;
    std::function<std::string(const KarvelloCopy&)> text;
    SampleCoverage coverage = SampleCoverage::translated;

    [[nodiscard]] std::string_view member() const { return std::string_view(name).substr(0, name.find(' ')); }
};

/// The samples by theme, which is the name of the file in Catalogue without "Copy.cpp".
using CatalogueSamples = std::map<std::string, std::vector<CatalogueSample>>;
[[nodiscard]] const CatalogueSamples& catalogueSamples();

/// Adds samples to a theme: constants of this type in CatalogueSamples/ThemeSamples.cpp are all that it takes.
struct CatalogueTheme {
    CatalogueTheme(const std::string& name, std::vector<CatalogueSample> samples);
};

/// One sample for each case of an enumeration that has raw values.
template <typename Case>
std::vector<CatalogueSample> samplesOfEachCase(const std::string& member,
    std::function<std::string(const KarvelloCopy&, Case)> text, SampleCoverage coverage = SampleCoverage::translated)
{
    std::vector<CatalogueSample> samples;
    for (const Case value : Platform::allCases<Case>()) {
        samples.push_back({fmt::format("{} {}", member, Platform::rawValue(value)),
            [text, value](const KarvelloCopy& copy) { return text(copy, value); }, coverage});
    }
    return samples;
}

} // namespace KarvelloUI
