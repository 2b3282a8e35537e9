#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"
#include "KarvelloCLI/InsightSubject.h"
#include "KarvelloCLI/TextStyle.h"

#include <string>
#include <vector>

namespace KarvelloCLI {

/// What a report left out for the limits of its scan, a sentence each with the option that goes further. None where
/// nothing was.
[[nodiscard]] std::vector<std::string> limitSentences(
    const CleanerCore::MacStorageInsightReport& report, const InsightSubject& subject, const TextStyle& style);

} // namespace KarvelloCLI
