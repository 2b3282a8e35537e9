#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

/// The fingerprint of an item: what was there when it was looked at. Two fingerprints are the same only if all fields
/// are, so an item that merely grew or was touched counts as another one.
struct FileResourceIdentity {
    std::optional<std::string> fileResourceIdentifier = {};
    std::optional<std::string> volumeIdentifier = {};
    std::optional<bool> isDirectory = {};
    std::optional<std::int64_t> fileSize = {};
    std::optional<std::int64_t> totalFileAllocatedSize = {};
    std::optional<std::uint64_t> systemFileNumber = {};
    std::optional<std::uint64_t> systemNumber = {};
    std::optional<Platform::Date> creationDate = {};
    std::optional<Platform::Date> modificationDate = {};

    /// Nothing if no field at all could be read. The resource values and the attributes are read apart: the failure of
    /// one leaves only its own fields absent.
    static std::optional<FileResourceIdentity> captureIfAvailable(
        const Platform::ItemReference& item, const Platform::FileManager& fileManager);

    /// The fingerprint that these readings tell; nothing if they tell no field at all.
    static std::optional<FileResourceIdentity> fromReadings(const Platform::FingerprintReadings& readings);

    friend bool operator==(const FileResourceIdentity&, const FileResourceIdentity&) = default;
};

} // namespace CleanerCore
