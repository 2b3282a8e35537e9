#include "KarvelloCLI/CommandOutput.h"

#include "CleanerCore/Audit/CleanupAuditExporter.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/WorkingDirectory.h"

#include <string>
#include <system_error>
#include <vector>

namespace KarvelloCLI {

namespace {

std::string wordsOf(const Platform::FileError& error)
{
    return sayReason(
        error.systemError != 0 ? std::generic_category().message(error.systemError) : error.localizedDescription());
}

std::optional<OutputFile> openOutput(
    const CommonOptions& options, const Platform::FileURL& workingDirectory, const Platform::FileManager& fileManager)
{
    if (!options.output) {
        return OutputFile::standardOutput();
    }
    const std::string path =
        options.output->starts_with('/') ? *options.output : workingDirectory.path() + "/" + *options.output;
    auto named = OutputFile::named(path, fileManager);
    if (!named) {
        printMessage("--output: " + say("{}.", named.error()));
        return std::nullopt;
    }
    return *std::move(named);
}

} // namespace

std::optional<CommandPlaces> openPlaces(
    std::span<const std::string> paths, const CommonOptions& options, const Platform::FileManager& fileManager)
{
    auto here = workingDirectoryFor(paths);
    if (!here) {
        printMessage(here.error());
        return std::nullopt;
    }
    auto output = openOutput(options, *here, fileManager);
    if (!output) {
        return std::nullopt;
    }
    return CommandPlaces{.workingDirectory = *std::move(here), .output = *std::move(output)};
}

std::optional<OutputFile> outputOf(const CommonOptions& options, const Platform::FileManager& fileManager)
{
    std::vector<std::string> paths;
    if (options.output) {
        paths.push_back(*options.output);
    }
    auto places = openPlaces(paths, options, fileManager);
    return places ? std::optional(std::move(places->output)) : std::nullopt;
}

Delivery deliver(std::string_view data, const OutputFile& output, const Platform::FileManager& fileManager)
{
    if (const auto written = output.write(data, fileManager); !written) {
        printMessage(say("{} could not be written: {}.", output.name(), wordsOf(written.error())));
        return Delivery::failed;
    }
    return Delivery::written;
}

Delivery deliverExport(const std::expected<std::string, CleanerCore::ExportError>& data, const OutputFile& output,
    const Platform::FileManager& fileManager)
{
    if (!data) {
        printMessage(data.error().localizedDescription());
        return Delivery::failed;
    }
    return deliver(*data, output, fileManager);
}

Delivery deliverAuditExport(std::span<const CleanerCore::CleanupAuditEntry> entries, const CommonOptions& options,
    const OutputFile& output, const Platform::FileManager& fileManager)
{
    const auto data = CleanerCore::CleanupAuditExporter::data(
        entries, exportFormat(options), exportPrivacy(options), Platform::Date::now());
    return deliverExport(data, output, fileManager);
}

CleanerCore::ScanResultExportFormat exportFormat(const CommonOptions& options)
{
    using enum CleanerCore::ScanResultExportFormat;
    return options.format == OutputFormat::json ? json : csv;
}

CleanerCore::ReportExportPrivacyMode exportPrivacy(const CommonOptions& options)
{
    using enum CleanerCore::ReportExportPrivacyMode;
    return options.isRedacted ? redacted : full;
}

} // namespace KarvelloCLI
