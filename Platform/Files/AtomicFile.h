#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"

#include <cstdint>
#include <expected>
#include <string_view>

namespace Platform {

enum class WriteDurability : std::uint8_t {
    onDisk,
    /// The system writes it when it sees fit: whole or not at all for every reader, but not after a loss of power.
    leftToSystem,
};

/// The contract of `FileManager::writeAtomically`, which always wants the file on the disk.
[[nodiscard]] std::expected<void, FileError> replaceFile(
    const FileURL& url, std::string_view bytes, WriteDurability durability = WriteDurability::onDisk);

} // namespace Platform
