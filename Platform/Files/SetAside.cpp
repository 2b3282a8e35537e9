#include "Platform/Files/SetAside.h"

#include "Platform/Base/Date.h"
#include "Platform/Base/UUID.h"

#include <cstdint>
#include <fmt/format.h>
#include <utility>

namespace Platform {

std::expected<FileURL, FileError> setAside(const FileManager& fileManager, const FileURL& file, std::string_view reason)
{
    const auto seconds = static_cast<std::int64_t>(Date::now().secondsSince1970());
    const auto name = fmt::format("{}.{}-{}-{}", file.lastPathComponent(), reason, seconds, UUID::random().string());
    auto kept = file.deletingLastPathComponent().appending(name);
    if (auto moved = fileManager.moveItem(file, kept); !moved) {
        return std::unexpected(std::move(moved.error()));
    }
    return kept;
}

} // namespace Platform
