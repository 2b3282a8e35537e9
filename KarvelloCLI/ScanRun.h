#pragma once

#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/ScanPlan.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <cstddef>
#include <expected>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// What a finished scan has to say beside its result.
struct ScanJudgement {
    ExitCode exitCode = ExitCode::done;
    /// Folders of the user's own that may not be scanned or do not exist, with the reason.
    std::vector<CleanerCore::SkippedItem> refusals;
    /// How many items could not be judged since something could not be read.
    std::size_t failures = 0;

    /// The folders that the user named.
    struct NamedFolders {
        /// Those of which the scanner says whether they may be scanned.
        std::span<const Platform::FileURL> folders;
        std::size_t count = 0;
        /// Nothing else was to be scanned.
        bool areAll = false;
    };

    /// `report` is the scanner's own: what the plan refused is not in it.
    static ScanJudgement of(const CleanerCore::ScanReport& report, const ScanPlan& plan);
    static ScanJudgement of(std::span<const CleanerCore::SkippedItem> skippedItems,
        std::vector<CleanerCore::SkippedItem> refusedBeforehand, const NamedFolders& named);

    /// A message on each refusal, with advice where there is some.
    void tellRefusals(const Platform::FileManager& fileManager) const;
    /// Tells the refusals, what could not be read, and an interruption; gives the exit code that follows.
    [[nodiscard]] ExitCode conclude(bool isInterrupted, const Platform::FileManager& fileManager) const;
};

/// One scan as the words of a command line ask for it, whatever the command makes of it then.
struct ScanRun {
    /// Its subject tells whether the scan was interrupted or refused.
    ScanPlan plan;
    /// The scanner's own: what the plan refused is not in it.
    CleanerCore::ScanReport report;
    ScanJudgement judgement;

    /// Scans, with a line of progress on standard error. The error is a sentence for the user: nothing was scanned.
    static std::expected<ScanRun, std::string> perform(const ScanOptions& options,
        const Platform::FileURL& workingDirectory, const Platform::FileManager& fileManager,
        const Platform::Environment& environment, const std::stop_token& stop);
};

} // namespace KarvelloCLI
