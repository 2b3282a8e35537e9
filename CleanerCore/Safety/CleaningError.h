#pragma once

#include <cstdint>
#include <string>

namespace CleanerCore {

/// Why the safety rules refused: a kind and the path that it speaks of.
struct CleaningError {
    enum class Kind : std::uint8_t {
        pathNotAllowed,
        criticalPath,
        protectedUserData,
        symbolicLink,
        unreadableAttributes,
        cleanupCandidateChanged,
        cleanupCandidateRecentlyModified,
        cleanupValidationItemLimitExceeded,
        cleanupPostOperationVerificationFailed,
        restoreDestinationMissing,
        restoreDestinationExists,
        missingRestoreSourceIdentity,
        restoreSourceChanged,
        /// Carries no path.
        moveToTrashUnavailable,
    };

    Kind kind = Kind::pathNotAllowed;
    std::string path;

    /// The kind's sentence followed at once by the path, bytes that are not UTF-8 escaped.
    [[nodiscard]] std::string errorDescription() const;

    friend bool operator==(const CleaningError&, const CleaningError&) = default;
};

} // namespace CleanerCore
