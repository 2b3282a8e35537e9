#pragma once

#include "KarvelloUI/Copy/KarvelloCopy.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// What the six languages of the tables make of a sample.
enum class SampleCoverage : std::uint8_t {
    translated,
    /// No row takes the sentence, and none is meant to: it stays as the English has it.
    staysEnglish,
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

/// Adds the samples of a theme: a constant of this type in CatalogueSamples/ThemeSamples.cpp is all that it takes.
struct CatalogueTheme {
    CatalogueTheme(std::string name, std::initializer_list<CatalogueSample> samples);
};

} // namespace KarvelloUI
