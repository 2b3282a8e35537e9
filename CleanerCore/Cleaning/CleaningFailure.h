#pragma once

#include "CleanerCore/Safety/CleaningError.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileError.h"

#include <cstdint>
#include <expected>
#include <string>

namespace CleanerCore {

/// Why an item was neither cleaned nor restored.
struct CleaningFailure {
    enum class Kind : std::uint8_t {
        /// The rules or the system refused.
        refused,
        /// A stop was requested: the item is left as it is and appears in no result.
        stopped,
    };

    Kind kind = Kind::refused;
    /// For a person to read.
    std::string reason;

    static std::unexpected<CleaningFailure> refused(const CleaningError& error)
    {
        return std::unexpected(CleaningFailure{Kind::refused, error.errorDescription()});
    }
    static std::unexpected<CleaningFailure> refused(CleaningError::Kind kind, const Platform::FileURL& url)
    {
        return refused({kind, url.path()});
    }
    static std::unexpected<CleaningFailure> refused(const Platform::FileError& error)
    {
        return std::unexpected(CleaningFailure{Kind::refused, error.localizedDescription()});
    }
    static std::unexpected<CleaningFailure> stopped() { return std::unexpected(CleaningFailure{Kind::stopped, {}}); }

    friend bool operator==(const CleaningFailure&, const CleaningFailure&) = default;
};

} // namespace CleanerCore
