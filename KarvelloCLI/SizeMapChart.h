#pragma once

#include "CleanerCore/Insights/StorageMapItem.h"
#include "KarvelloCLI/Bar.h"
#include "KarvelloCLI/TerminalText.h"
#include "KarvelloCLI/TextStyle.h"

#include <span>
#include <string>

namespace KarvelloCLI {

/// The folders of a size map as lines with a bar each, where there is room for one. A folder whose figures are a lower
/// bound is marked with ">". `names` has one for each folder.
[[nodiscard]] std::string sizeMapChart(std::span<const CleanerCore::StorageMapItem> folders,
    std::span<const TerminalText> names, const TextStyle& style, BarGlyphs glyphs);

} // namespace KarvelloCLI
