#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>

namespace CleanerCore {

/// Why a folder cannot be added to the scan.
struct CustomScanFolderError {
    enum class Kind : std::uint8_t { notDirectory, unsafeRoot };

    Kind kind = Kind::notDirectory;
    std::string path;

    /// The kind's sentence followed at once by the path, bytes that are not UTF-8 escaped.
    [[nodiscard]] std::string errorDescription() const;

    friend bool operator==(const CustomScanFolderError&, const CustomScanFolderError&) = default;
};

/// Whether a person may add the folder. Roots are judged against `homeDirectory`, or without one against the person's
/// real home.
[[nodiscard]] std::expected<void, CustomScanFolderError> validateCustomFolder(const Platform::FileURL& url,
    const Platform::FileManager& fileManager, const std::optional<Platform::FileURL>& homeDirectory = std::nullopt);

/// The location for a folder that passed the checks. It is trusted less than those that the product knows: all that is
/// found in it is left to manual review, a day old and never selected.
[[nodiscard]] ScanLocation checkedCustomFolderLocation(const Platform::FileURL& url, const std::string& displayName);

/// The location for a folder that `validateCustomFolder` allows.
[[nodiscard]] std::expected<ScanLocation, CustomScanFolderError> customFolderLocation(const Platform::FileURL& url,
    const std::string& displayName, const Platform::FileManager& fileManager,
    const std::optional<Platform::FileURL>& homeDirectory = std::nullopt);

} // namespace CleanerCore
