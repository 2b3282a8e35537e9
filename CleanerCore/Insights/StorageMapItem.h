#pragma once

#include "Platform/Base/FileURL.h"

#include <cstdint>
#include <string>

namespace CleanerCore {

/// One bar of the size map: a folder and what the walk counted in it.
struct StorageMapItem {
    /// What a bar is made from; the constructor normalises it.
    struct Fields {
        Platform::FileURL url;
        std::string displayName;
        /// Negative counts as 0.
        std::int64_t sizeBytes = 0;
        /// Negative counts as 0.
        std::int64_t itemCount = 0;
        bool isTruncated = false;
    };

    StorageMapItem() = default;
    explicit StorageMapItem(Fields fields);

    /// The folder's path (`identifyingPath`).
    std::string id;
    Platform::FileURL url;
    /// Bytes as the file system has them: not necessarily UTF-8.
    std::string displayName;
    /// Allocated bytes.
    std::int64_t sizeBytes = 0;
    std::int64_t itemCount = 0;
    /// The figures are a lower bound: the walk gave up before the end.
    bool isTruncated = false;

    friend bool operator==(const StorageMapItem&, const StorageMapItem&) = default;
};

} // namespace CleanerCore
