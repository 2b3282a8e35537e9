#pragma once

#include "Platform/Base/FileURL.h"

#include <string>

namespace CleanerCore {

/// An item that did not become a candidate, and why: a text of `StorageScannerSkipReason`, or the words of an error.
struct SkippedItem {
    Platform::FileURL url;
    std::string reason;

    friend bool operator==(const SkippedItem&, const SkippedItem&) = default;
};

} // namespace CleanerCore
