#pragma once

#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Relief/ResourceReliefCandidate.h"
#include "KarvelloCLI/TextStyle.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/JSONError.h"
#include "Platform/Services/RunningApplications.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

/// A running application and whether it may be asked to quit.
struct AppsRow {
    CleanerCore::ResourceReliefCandidate candidate;
    std::size_t processCount = 1;
};

/// In the order of the policy. The command line cannot ask an application anything, so none is actionable: those that a
/// desktop program could ask have the reason `sandboxUnavailable`.
[[nodiscard]] std::vector<AppsRow> appsRows(
    std::span<const Platform::RunningApplication> applications, std::int32_t ownProcess);

/// Why an application is not asked, in few words.
[[nodiscard]] std::string quitWords(const CleanerCore::ResourceReliefEligibility& eligibility);

/// Those that take the most memory first. What runs in the background is only counted unless the table is verbose. With
/// `isRedacted`, tokens stand for names and identifiers.
[[nodiscard]] std::string appsTable(
    std::span<const AppsRow> rows, Platform::Date now, bool isRedacted, const TextStyle& style);
[[nodiscard]] std::expected<std::string, Platform::JSONError> appsJSON(
    std::span<const AppsRow> rows, Platform::Date now, CleanerCore::ReportExportPrivacyMode privacy);
[[nodiscard]] std::string appsCSV(std::span<const AppsRow> rows, CleanerCore::ReportExportPrivacyMode privacy);

} // namespace KarvelloCLI
