#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"

#include <compare>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

/// What the insight walk keeps of an item that may matter. There may be a million of them: the path of the folder is
/// shared by all that lies in it, and a whole path is built only when it is asked for.
struct FileRecord {
    FileRecord() = default;
    /// A record by itself, with a folder path of its own.
    explicit FileRecord(const Platform::FileURL& url);
    /// `folder` is standardised and not null; `entryName` is one component.
    FileRecord(std::shared_ptr<const std::string> folder, std::string_view entryName)
        : folderPath(std::move(folder))
        , name(entryName)
    {
    }

    std::shared_ptr<const std::string> folderPath;
    std::string name;
    std::int64_t allocatedSizeBytes = 0;
    /// For a folder this is the allocated size once more.
    std::int64_t logicalSizeBytes = 0;
    std::optional<Platform::Date> lastModified;
    /// Inode and device: records that agree in both are names of one file. Both 0 where the file system told neither.
    std::uint64_t fileNumber = 0;
    std::uint64_t deviceNumber = 0;
    bool isDirectory = false;

    [[nodiscard]] Platform::FileURL url() const;
    /// The order of the paths, byte by byte.
    [[nodiscard]] std::strong_ordering comparePath(const FileRecord& other) const;
};

} // namespace CleanerCore
