#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "KarvelloCLI/InsightPlan.h"
#include "KarvelloCLI/InsightsOptions.h"
#include "KarvelloCLI/ScanRun.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <expected>
#include <stop_token>
#include <string>

namespace KarvelloCLI {

/// One insight scan as the words of a command line ask for it.
struct InsightRun {
    /// Its subject tells whether the scan was interrupted or refused, and where it was cut short.
    InsightPlan plan;
    /// With the folders that do not exist among what was skipped, and without the parts that were not asked for.
    CleanerCore::MacStorageInsightReport report;
    ScanJudgement judgement;

    /// Scans, with a line of progress on standard error. The error is a sentence for the user: nothing was scanned.
    static std::expected<InsightRun, std::string> perform(const InsightsOptions& options,
        const Platform::FileURL& workingDirectory, const Platform::FileManager& fileManager,
        const Platform::Environment& environment, const std::stop_token& stop);
};

} // namespace KarvelloCLI
