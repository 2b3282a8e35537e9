#pragma once

#include "CleanerCore/Insights/MacStorageInsightReport.h"

#include <functional>
#include <set>
#include <string>

namespace CleanerCore {

/// The report without the files at `paths` (standardised, compared by bytes), for showing what a clean left without a
/// second scan. A group of duplicates with a single file left goes. A bar of the size map loses what lay below its
/// folder, each file once, and stays even at nothing; a file that is itself a bar takes nothing from it. No list but
/// that of a group is put into another order.
[[nodiscard]] MacStorageInsightReport removingFiles(
    MacStorageInsightReport report, const std::set<std::string, std::less<>>& paths);

} // namespace CleanerCore
