#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Export/ExportError.h"
#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Export/ScanResultExportFormat.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/OutputFile.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace KarvelloCLI {

enum class Delivery : std::uint8_t { written, failed };

/// What a command needs of the disk before it begins.
struct CommandPlaces {
    /// The folder that relative paths count from.
    Platform::FileURL workingDirectory;
    OutputFile output;
};

/// For a command with `paths` among its options, `--output` one of them. Nothing, after a message to the user, if there is
/// no folder that relative ones could count from, or if the output cannot be written to.
[[nodiscard]] std::optional<CommandPlaces> openPlaces(
    std::span<const std::string> paths, const CommonOptions& options, const Platform::FileManager& fileManager);

/// The same for a command that has no other paths: a relative one counts from where the user is.
[[nodiscard]] std::optional<OutputFile> outputOf(
    const CommonOptions& options, const Platform::FileManager& fileManager);

/// Writes all of it; a failure is told to the user.
[[nodiscard]] Delivery deliver(
    std::string_view data, const OutputFile& output, const Platform::FileManager& fileManager);

/// The same for an export, whose own failure is told as well.
[[nodiscard]] Delivery deliverExport(const std::expected<std::string, CleanerCore::ExportError>& data,
    const OutputFile& output, const Platform::FileManager& fileManager);

/// Writes entries of the log in the form for programs that the options name; a failure is told to the user.
[[nodiscard]] Delivery deliverAuditExport(std::span<const CleanerCore::CleanupAuditEntry> entries,
    const CommonOptions& options, const OutputFile& output, const Platform::FileManager& fileManager);

/// What the options ask of an export. Meaningless for a table.
[[nodiscard]] CleanerCore::ScanResultExportFormat exportFormat(const CommonOptions& options);
[[nodiscard]] CleanerCore::ReportExportPrivacyMode exportPrivacy(const CommonOptions& options);

} // namespace KarvelloCLI
