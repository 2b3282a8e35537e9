#pragma once

#include "CleanerCore/Scan/ScanReport.h"
#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/ScanPlan.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <cstddef>
#include <vector>

namespace KarvelloCLI {

/// What a finished scan has to say beside its result.
struct ScanJudgement {
    ExitCode exitCode = ExitCode::done;
    /// Folders of the user's own that may not be scanned or do not exist, with the reason.
    std::vector<CleanerCore::SkippedItem> refusals;
    /// How many items could not be judged since something could not be read.
    std::size_t failures = 0;

    /// `report` is the scanner's own: what the plan refused is not in it.
    static ScanJudgement of(const CleanerCore::ScanReport& report, const ScanPlan& plan);
};

/// The command "scan": looks, shows, changes nothing. Data goes to standard output or the named file, everything else
/// to standard error. Handles SIGINT and SIGTERM while it works.
class ScanCommand {
public:
    /// Both must outlive the command.
    ScanCommand(const Platform::FileManager& fileManager, const Platform::Environment& environment);

    [[nodiscard]] ExitCode run(const ScanOptions& options) const;

private:
    [[nodiscard]] ExitCode concluded(const ScanJudgement& judgement, const ScanPlan& plan) const;

    const Platform::FileManager& m_fileManager;
    const Platform::Environment& m_environment;
};

} // namespace KarvelloCLI
