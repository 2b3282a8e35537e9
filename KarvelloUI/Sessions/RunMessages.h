#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace KarvelloUI {

/// What the user reads when a clean or a restore did not do all that it was asked for.
struct RunMessages {
    static constexpr std::string_view kCleanFailed = "Some items could not be cleaned. Review the result details.";
    static constexpr std::string_view kCleanCancelled =
        "Cleaning was cancelled. Already cleaned items were removed from the list.";
    static constexpr std::string_view kNoLongerEligible =
        "Some selected items are no longer eligible for cleanup. Refresh the scan and review them again.";
    static constexpr std::string_view kRestoreFailed = "Some items could not be restored.";
    static constexpr std::string_view kRestoreCancelled = "Restore was cancelled.";

    std::string failure;
    std::string cancellation;

    /// The caller's words, or without them the session's own.
    static RunMessages ofClean(std::optional<std::string> failure, std::optional<std::string> cancellation)
    {
        return {.failure = std::move(failure).value_or(std::string(kCleanFailed)),
            .cancellation = std::move(cancellation).value_or(std::string(kCleanCancelled))};
    }
    static RunMessages ofRestore(std::optional<std::string> failure, std::optional<std::string> cancellation)
    {
        return {.failure = std::move(failure).value_or(std::string(kRestoreFailed)),
            .cancellation = std::move(cancellation).value_or(std::string(kRestoreCancelled))};
    }

    /// Nothing where all went well.
    template <typename Result>
    [[nodiscard]] std::optional<std::string> after(const Result& result) const
    {
        if (result.wasCancelled) {
            return cancellation;
        }
        return result.failedItems.empty() ? std::nullopt : std::optional(failure);
    }
};

} // namespace KarvelloUI
