#include "KarvelloCLI/ScanCommand.h"

#include "CleanerCore/Export/ScanResultExporter.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/ScanRun.h"

#include <expected>
#include <optional>
#include <string>
#include <unordered_set>

namespace KarvelloCLI {

namespace {

using CleanerCore::ScanReport;

std::string tableOf(const ScanReport& report, const ScanSubject& subject, const CommonOptions& options,
    const OutputFile& output, const Platform::Environment& environment)
{
    const int descriptor = output.descriptor();
    return ScanTable(report, subject,
        {
            .columns = terminalColumns(descriptor, environment),
            .usesColor = usesColor(options.color, Terminal::of(descriptor, environment), environment),
            .isVerbose = options.isVerbose,
            .isRedacted = options.isRedacted,
        })
        .text();
}

std::expected<std::string, CleanerCore::ExportError> exportOf(const ScanReport& report, const CommonOptions& options)
{
    std::unordered_set<std::string> selected;
    for (const CleanerCore::CleanupCandidate& candidate : report.candidates) {
        if (candidate.isSelectedByDefault) {
            selected.insert(candidate.id);
        }
    }
    return CleanerCore::ScanResultExporter::data(
        report, selected, exportFormat(options), exportPrivacy(options), Platform::Date::now());
}

} // namespace

ScanCommand::ScanCommand(const Platform::FileManager& fileManager, const Platform::Environment& environment)
    : m_fileManager(fileManager)
    , m_environment(environment)
{
}

ExitCode ScanCommand::run(const ScanOptions& options) const
{
    const CommonOptions& common = options.common;
    const auto opened = openPlaces(options.paths(), common, m_fileManager);
    if (!opened) {
        return ExitCode::wrongUsage;
    }
    const OutputFile& output = opened->output;

    std::optional<Interruption> interruption(std::in_place);
    auto run = ScanRun::perform(options, opened->workingDirectory, m_fileManager, m_environment, interruption->token());
    if (!run) {
        printMessage(run.error());
        return ExitCode::refused;
    }
    ScanReport& report = run->report;
    const auto& refused = run->plan.refusedFolders;
    report.skippedItems.insert(report.skippedItems.begin(), refused.begin(), refused.end());

    if (!output.isReplacedAtomically()) {
        // A reader may be slow; from here on a signal simply ends the program.
        interruption.reset();
    }
    const auto data = common.format == OutputFormat::table
        ? tableOf(report, run->plan.subject, common, output, m_environment)
        : exportOf(report, common);
    if (deliverExport(data, output, m_fileManager) == Delivery::failed) {
        return ExitCode::partial;
    }
    return run->judgement.conclude(run->plan.subject.isIncomplete, m_fileManager);
}

} // namespace KarvelloCLI
