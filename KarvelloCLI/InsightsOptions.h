#pragma once

#include "CleanerCore/Insights/InsightConfiguration.h"
#include "KarvelloCLI/Options.h"

#include <CLI/CLI.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// The parts of an insight scan, by the words for `--only`.
enum class InsightPart : std::uint8_t { map, large, downloads, duplicates, security };

/// Folders are as the user gave them, possibly relative and not necessarily UTF-8.
struct InsightsOptions {
    CommonOptions common;
    std::optional<std::string> home;
    std::vector<std::string> roots;
    /// Absent: all parts.
    std::optional<InsightPart> only;
    CleanerCore::InsightConfiguration configuration = CleanerCore::InsightConfiguration::standard();

    /// Folders of the user's own replace those of the home unless the home is asked for beside them.
    [[nodiscard]] bool looksAtHome() const { return home || roots.empty(); }
    /// Whether a part is wanted.
    [[nodiscard]] bool wants(InsightPart part) const { return !only || *only == part; }
    /// Every path that the user gave.
    [[nodiscard]] std::vector<std::string> paths() const;
};

extern const char* const kInsightsIntroduction;
extern const char* const kInsightsFooter;

/// Both must outlive the parsing.
void addInsightsOptions(CLI::App& app, InsightsOptions& options);

} // namespace KarvelloCLI

template <>
struct Platform::RawValues<KarvelloCLI::InsightPart> {
    static constexpr std::array<std::string_view, 5> names{"map", "large", "downloads", "duplicates", "security"};
};
