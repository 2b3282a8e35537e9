#include "KarvelloCLI/StatusCommand.h"

#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Interruption.h"
#include "Platform/Base/Waiting.h"
#include "Platform/Services/HomeDirectory.h"

#include <chrono>
#include <optional>
#include <string>

namespace KarvelloCLI {

namespace {

constexpr std::chrono::milliseconds kFirstLook{350};

StatusReading read()
{
    return {
        .snapshot = CleanerCore::SystemResourceSnapshot::current(),
        .disk = Platform::VolumeCapacity::of(Platform::homeDirectoryForCurrentUser()),
    };
}

std::optional<std::string> textOf(const StatusReading& reading, const CommonOptions& options, const TextStyle& style)
{
    if (options.format == OutputFormat::table) {
        return statusTable(reading, style);
    }
    if (options.format == OutputFormat::csv) {
        return statusCSVHeader(exportPrivacy(options)) + statusCSVRow(reading);
    }
    const auto json = statusJSON(reading);
    return json ? std::optional(*json) : std::nullopt;
}

} // namespace

ExitCode StatusCommand::run(const StatusOptions& options) const
{
    const CommonOptions& common = options.common;
    const auto output = outputOf(common, m_fileManager);
    if (!output) {
        return ExitCode::wrongUsage;
    }
    std::optional<Interruption> interruption(std::in_place);
    // How busy the processors are shows between two looks.
    (void)CleanerCore::SystemResourceSnapshot::current();
    Platform::waitUnlessStopped(kFirstLook, interruption->token());
    if (interruption->token().stop_requested()) {
        return ExitCode::interrupted;
    }
    if (options.watch) {
        return watch(options, *options.watch, *output, interruption->token());
    }
    const auto reading = read();
    interruption.reset();
    const auto style =
        TextStyle::of(common, output->descriptor(), Platform::homeDirectoryForCurrentUser(), m_environment);
    const auto text = textOf(reading, common, style);
    return text && deliver(*text, *output, m_fileManager) == Delivery::written ? ExitCode::done : ExitCode::partial;
}

ExitCode StatusCommand::watch(
    const StatusOptions& options, double seconds, const OutputFile& output, const std::stop_token& stop) const
{
    const CommonOptions& common = options.common;
    const bool isTable = common.format == OutputFormat::table;
    const bool isLive = isTable && Terminal::of(output.descriptor(), m_environment).understandsEscapes;
    StatusTrend trend(usesUTF8(m_environment) ? SparkGlyphs::blocks : SparkGlyphs::ascii);
    bool isFirst = true;
    while (!stop.stop_requested()) {
        const auto reading = read();
        // A window changes its size.
        auto style = TextStyle::of(common, output.descriptor(), Platform::homeDirectoryForCurrentUser(), m_environment);
        std::optional<std::string> text;
        if (isLive) {
            // The last column stays free: a terminal that wraps there would make two lines of one.
            style.columns -= 1;
            text = std::string(kEraseLine) + trend.line(reading, style);
        } else if (isTable) {
            text = statusLine(reading, style);
        } else if (common.format == OutputFormat::csv && !isFirst) {
            text = statusCSVRow(reading);
        } else {
            text = textOf(reading, common, style);
        }
        isFirst = false;
        if (!text || deliver(*text, output, m_fileManager) == Delivery::failed) {
            return ExitCode::partial;
        }
        Platform::waitUnlessStopped(std::chrono::milliseconds(static_cast<std::int64_t>(seconds * 1000)), stop);
    }
    if (isLive) {
        // The last reading stays, and the prompt gets a line of its own.
        (void)deliver("\n", output, m_fileManager);
    }
    return ExitCode::interrupted;
}

} // namespace KarvelloCLI
