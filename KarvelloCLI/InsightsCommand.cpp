#include "KarvelloCLI/InsightsCommand.h"

#include "CleanerCore/Export/ScanResultExporter.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/InsightRun.h"
#include "KarvelloCLI/InsightTable.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"

#include <expected>
#include <optional>
#include <string>

namespace KarvelloCLI {

namespace {

std::string tableOf(const InsightRun& run, const CommonOptions& options, const OutputFile& output,
    const Platform::Environment& environment)
{
    return InsightTable(run.report, run.plan.subject,
        {
            .style = TextStyle::of(options, output.descriptor(), run.plan.subject.home, environment),
            .isRedacted = options.isRedacted,
            .glyphs = usesUTF8(environment) ? BarGlyphs::blocks : BarGlyphs::ascii,
        })
        .text();
}

std::expected<std::string, CleanerCore::ExportError> exportOf(const InsightRun& run, const CommonOptions& options)
{
    return CleanerCore::ScanResultExporter::data(
        run.report, {}, exportFormat(options), exportPrivacy(options), Platform::Date::now());
}

} // namespace

InsightsCommand::InsightsCommand(const Platform::FileManager& fileManager, const Platform::Environment& environment)
    : m_fileManager(fileManager)
    , m_environment(environment)
{
}

ExitCode InsightsCommand::run(const InsightsOptions& options) const
{
    const CommonOptions& common = options.common;
    const auto opened = openPlaces(options.paths(), common, m_fileManager);
    if (!opened) {
        return ExitCode::wrongUsage;
    }
    const OutputFile& output = opened->output;

    std::optional<Interruption> interruption(std::in_place);
    const auto run =
        InsightRun::perform(options, opened->workingDirectory, m_fileManager, m_environment, interruption->token());
    if (!run) {
        printMessage(run.error());
        return ExitCode::refused;
    }
    if (!output.isReplacedAtomically()) {
        // A reader may be slow; from here on a signal simply ends the program.
        interruption.reset();
    }
    const auto data =
        common.format == OutputFormat::table ? tableOf(*run, common, output, m_environment) : exportOf(*run, common);
    if (deliverExport(data, output, m_fileManager) == Delivery::failed) {
        return ExitCode::partial;
    }
    return run->judgement.conclude(run->plan.subject.isIncomplete, m_fileManager);
}

} // namespace KarvelloCLI
