#include "CleanerCore/Cleaning/CleaningService.h"

#include "CleanerCore/Cleaning/CleaningFailure.h"
#include "CleanerCore/Cleaning/CleanupValidationSnapshot.h"
#include "CleanerCore/Cleaning/MoveAnchors.h"
#include "CleanerCore/Safety/SafePathPolicy.h"

#include <cmath>
#include <utility>

namespace CleanerCore {

namespace {

using Kind = CleaningError::Kind;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;

// Some file systems keep times no finer than this, in seconds.
constexpr double kDateTolerance = 1.0;

/// One clean: what every candidate of it is held against.
class Clean {
public:
    Clean(const Platform::FileManager& fileManager, Platform::Trash& trash, SafePathPolicy policy, CleaningMode mode,
        const CleanupEligibilityPolicy& eligibility, const std::stop_token& stop)
        : m_fileManager(fileManager)
        , m_trash(trash)
        , m_policy(std::move(policy))
        , m_mode(mode)
        , m_eligibility(eligibility)
        , m_stop(stop)
    {
    }

    /// The checks come in a fixed order: the first that fails gives the reason.
    [[nodiscard]] std::expected<CleanedItem, CleaningFailure> clean(const CleanupCandidate& candidate) const;

private:
    using Verdict = std::expected<void, CleaningFailure>;

    [[nodiscard]] Verdict validatePath(const FileURL& url) const;
    [[nodiscard]] Verdict validateCandidateStillMatchesScan(
        const CleanupCandidate& candidate, const CleanupValidationSnapshot& snapshot) const;
    [[nodiscard]] std::expected<std::optional<FileURL>, CleaningFailure> act(const Platform::ItemAnchor& anchor) const;
    [[nodiscard]] Verdict verifyPostCleanupState(
        const FileURL& originalURL, const std::optional<FileResourceIdentity>& expectedOriginalIdentity) const;

    const Platform::FileManager& m_fileManager;
    Platform::Trash& m_trash;
    SafePathPolicy m_policy;
    CleaningMode m_mode;
    const CleanupEligibilityPolicy& m_eligibility;
    const std::stop_token& m_stop;
};

std::expected<CleanedItem, CleaningFailure> Clean::clean(const CleanupCandidate& candidate) const
{
    const auto& url = candidate.url;
    // People confirm ids. Where the id and the path do not agree, the confirmed item is not the one at the path.
    if (candidate.id != CleanupCandidate::makeId(candidate.category, url)) {
        return CleaningFailure::refused(Kind::pathNotAllowed, url);
    }
    const auto root = m_eligibility.eligibleRoot(url, m_fileManager);
    if (!root) {
        return CleaningFailure::refused(Kind::pathNotAllowed, url);
    }
    if (auto verdict = validatePath(url); !verdict) {
        return std::unexpected(verdict.error());
    }
    // What moves in the end is what is walked now, also where the scan could not tell one item from another.
    const auto identity = candidate.resourceIdentity ? candidate.resourceIdentity
                                                     : FileResourceIdentity::captureIfAvailable(url, m_fileManager);
    const auto snapshot = CleanupValidationSnapshot::take(url, root->validationOptions, m_fileManager, m_stop);
    if (!snapshot) {
        return std::unexpected(snapshot.error());
    }
    if (snapshot->noTouchDescendantURL) {
        return CleaningFailure::refused(Kind::protectedUserData, *snapshot->noTouchDescendantURL);
    }
    if (auto verdict = validateCandidateStillMatchesScan(candidate, *snapshot); !verdict) {
        return std::unexpected(verdict.error());
    }
    if (!identity) {
        return CleaningFailure::refused(Kind::unreadableAttributes, url);
    }
    if (m_stop.stop_requested()) {
        return CleaningFailure::stopped();
    }
    // The walk may have taken long enough for somebody to change the path.
    if (auto verdict = validatePath(url); !verdict) {
        return std::unexpected(verdict.error());
    }
    if (m_stop.stop_requested()) {
        return CleaningFailure::stopped();
    }

    const auto destination = act({.root = folderAnchor(*root), .item = url, .isConfirmed = isItem(*identity)});
    if (!destination) {
        return std::unexpected(destination.error());
    }
    // Nothing is rolled back where this fails: the item was moved, and it is the verification that is missing.
    if (auto verdict = verifyPostCleanupState(url, candidate.resourceIdentity); !verdict) {
        return std::unexpected(verdict.error());
    }
    CleanedItem cleaned{.candidate = candidate,
        .destinationURL = *destination,
        .restoreSourceRootURL = std::nullopt,
        .restoreSourceIdentity = std::nullopt};
    if (cleaned.destinationURL) {
        cleaned.restoreSourceRootURL = cleaned.destinationURL->deletingLastPathComponent();
        cleaned.restoreSourceIdentity =
            FileResourceIdentity::captureIfAvailable(*cleaned.destinationURL, m_fileManager);
    }
    return cleaned;
}

Clean::Verdict Clean::validatePath(const FileURL& url) const
{
    if (const auto verdict = m_policy.validate(url, m_fileManager); !verdict) {
        return CleaningFailure::refused(verdict.error());
    }
    return {};
}

Clean::Verdict Clean::validateCandidateStillMatchesScan(
    const CleanupCandidate& candidate, const CleanupValidationSnapshot& snapshot) const
{
    const auto& url = candidate.url;
    if (candidate.resourceIdentity) {
        const auto current = FileResourceIdentity::captureIfAvailable(url, m_fileManager);
        if (!current) {
            return CleaningFailure::refused(Kind::unreadableAttributes, url);
        }
        if (*current != *candidate.resourceIdentity) {
            return CleaningFailure::refused(Kind::cleanupCandidateChanged, url);
        }
    }
    if (candidate.lastModified) {
        const auto& latest = snapshot.latestModificationDate;
        if (!latest) {
            return CleaningFailure::refused(Kind::unreadableAttributes, url);
        }
        // Written so that what is no number differs from every date.
        if (!(std::abs(latest->secondsSince(*candidate.lastModified)) <= kDateTolerance)) {
            return CleaningFailure::refused(Kind::cleanupCandidateRecentlyModified, url);
        }
    }
    return {};
}

std::expected<std::optional<FileURL>, CleaningFailure> Clean::act(const Platform::ItemAnchor& anchor) const
{
    const auto failure = [&anchor](const FileError& error) {
        return error.kind == FileErrorKind::itemChanged
            ? CleaningFailure::refused(Kind::cleanupCandidateChanged, anchor.item)
            : CleaningFailure::refused(error);
    };
    if (m_mode == CleaningMode::deletePermanently) {
        if (const auto removed = m_trash.removeItem(anchor); !removed) {
            return failure(removed.error());
        }
        return std::nullopt;
    }
    auto destination = m_trash.trashItem(anchor);
    if (!destination) {
        return failure(destination.error());
    }
    return *std::move(destination);
}

Clean::Verdict Clean::verifyPostCleanupState(
    const FileURL& originalURL, const std::optional<FileResourceIdentity>& expectedOriginalIdentity) const
{
    if (m_fileManager.existence(originalURL) == Platform::Existence::missing) {
        return {};
    }
    // An application may have made its cache anew in the meantime; it must be seen that this is what stands there.
    const auto current = FileResourceIdentity::captureIfAvailable(originalURL, m_fileManager);
    if (!expectedOriginalIdentity || !current || *current == *expectedOriginalIdentity) {
        return CleaningFailure::refused(Kind::cleanupPostOperationVerificationFailed, originalURL);
    }
    return {};
}

} // namespace

CleanResult CleaningService::clean(std::span<const CleanupCandidate> candidates,
    std::span<const ScanLocation> allowedLocations, CleaningMode mode,
    const CleanupEligibilityPolicy& cleanupEligibilityPolicy, const std::stop_token& stop,
    const std::optional<FileURL>& homeDirectory, const ItemProgressReport& report) const
{
    const Clean work(m_fileManager, m_trash, SafePathPolicy(rootURLs(allowedLocations), homeDirectory, m_fileManager),
        mode, cleanupEligibilityPolicy, stop);
    CleanResult result;
    for (const auto& candidate : candidates) {
        if (stop.stop_requested()) {
            result.wasCancelled = true;
            break;
        }
        auto cleaned = work.clean(candidate);
        if (cleaned) {
            result.cleanedItems.push_back(*std::move(cleaned));
        } else if (cleaned.error().kind == CleaningFailure::Kind::stopped) {
            result.wasCancelled = true;
            break;
        } else {
            result.failedItems.push_back({candidate, std::move(cleaned.error().reason)});
        }
        if (report) {
            report(
                {.doneItems = result.cleanedItems.size() + result.failedItems.size(), .allItems = candidates.size()});
        }
    }
    // A failure takes nothing back: every item is where the result says. What is not known to be on the disk yet is on
    // its way there, and a loss of power before that leaves an item where it was or in the Trash with its record.
    std::ignore = m_trash.settle();
    return result;
}

} // namespace CleanerCore
