#pragma once

#include "CleanerCore/Scan/CleanupScanMode.h"
#include "KarvelloCLI/Terminal.h"
#include "KarvelloUI/Copy/AppLanguage.h"
#include "Platform/Base/RawValue.h"
#include "Platform/Base/UUID.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

enum class OutputFormat : std::uint8_t { table, json, csv };

/// What every command understands.
struct CommonOptions {
    OutputFormat format = OutputFormat::table;
    bool isRedacted = false;
    /// As the user gave it. Absent: standard output.
    std::optional<std::string> output;
    When progress = When::automatic;
    When color = When::automatic;
    /// Absent: what the environment says. `languageAskedFor` has found it before.
    std::optional<KarvelloUI::AppLanguage> language;
    /// 0: as many as there are processors.
    unsigned jobs = 0;
    bool isVerbose = false;
};

/// Folders are as the user gave them, possibly relative and not necessarily UTF-8.
struct ScanOptions {
    CommonOptions common;
    std::optional<CleanerCore::CleanupScanMode> mode;
    std::optional<std::string> home;
    std::vector<std::string> folders;
    std::vector<std::string> roots;
    /// Seconds; holds for `roots` only, as the two that follow.
    double minimumAge = 0;
    bool includesHiddenFiles = false;
    bool includesPackageDescendants = false;

    /// Folders of the user's own replace the home unless the home is asked for beside them.
    [[nodiscard]] bool scansHome() const { return mode || home || (folders.empty() && roots.empty()); }
    /// Every path that the user gave.
    [[nodiscard]] std::vector<std::string> paths() const;
};

/// Which candidates of a scan go.
enum class CleanSelection : std::uint8_t { preselected, byId, all };

struct CleanOptions {
    ScanOptions scan;
    CleanSelection selection = CleanSelection::preselected;
    /// Candidate ids as the exports of a scan have them; for `byId` only.
    std::vector<std::string> ids;
    /// The user agreed beforehand: nothing is asked.
    bool isConfirmed = false;
};

/// Which recorded items go back; `none` only lists them.
enum class RestoreSelection : std::uint8_t { none, byId, all };

struct RestoreOptions {
    CommonOptions common;
    /// As the user gave it. Absent: the user's own.
    std::optional<std::string> home;
    /// Absent: every entry of the log.
    std::optional<Platform::UUID> entry;
    RestoreSelection selection = RestoreSelection::none;
    std::vector<std::string> ids;
    bool isConfirmed = false;
};

struct HistoryOptions {
    CommonOptions common;
    /// The newest so many entries, at least 1. Absent: all that the log keeps.
    std::optional<std::int64_t> limit;
};

} // namespace KarvelloCLI

template <>
struct Platform::RawValues<KarvelloCLI::OutputFormat> {
    static constexpr std::array<std::string_view, 3> names{"table", "json", "csv"};
};
