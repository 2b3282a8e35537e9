#include "KarvelloCLI/SizeMapChart.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TableLayout.h"

#include <fmt/format.h>

#include <algorithm>

namespace KarvelloCLI {

namespace {

/// A shorter bar tells nothing, and a longer one nothing more.
constexpr std::size_t kShortestBar = 8;
constexpr std::size_t kLongestBar = 60;
constexpr std::size_t kShortestName = 16;

} // namespace

std::string sizeMapChart(std::span<const CleanerCore::StorageMapItem> folders, std::span<const TerminalText> names,
    const TextStyle& style, BarGlyphs glyphs)
{
    const TerminalText sizeTitle(say("Size"));
    const TerminalText itemsTitle(say("Items"));
    const TerminalText folderTitle(say("Folder"));
    std::size_t sizeWidth = sizeTitle.columns();
    std::size_t itemsWidth = itemsTitle.columns();
    std::size_t longestName = folderTitle.columns();
    std::int64_t largest = 0;
    for (std::size_t index = 0; index < folders.size(); ++index) {
        sizeWidth = std::max(sizeWidth, columnsOf(style.size(folders[index].sizeBytes)));
        itemsWidth = std::max(itemsWidth, fmt::format_int(folders[index].itemCount).size());
        longestName = std::max(longestName, names[index].columns());
        largest = std::max(largest, folders[index].sizeBytes);
    }
    const std::size_t taken = kMarkWidth + sizeWidth + kColumnGap.size() + itemsWidth + kColumnGap.size();
    const std::size_t left = style.columns > taken ? style.columns - taken : 1;
    const std::size_t forBar = kShortestBar + kColumnGap.size();
    const bool hasBars = left >= kShortestName + forBar || left >= longestName + forBar;
    const std::size_t nameWidth = std::min(longestName, hasBars ? std::max(left / 2, kShortestName) : left);
    const std::size_t barWidth = hasBars ? std::min(left - nameWidth - kColumnGap.size(), kLongestBar) : 0;

    std::string text = style.painter(Ink::quiet,
                           fmt::format("{:{}}{}  {}  {}", "", kMarkWidth, sizeTitle.paddedLeft(sizeWidth),
                               itemsTitle.paddedLeft(itemsWidth), folderTitle.string()))
        + "\n";
    for (std::size_t index = 0; index < folders.size(); ++index) {
        const auto& folder = folders[index];
        text += folder.isTruncated ? style.painter(Ink::warning, ">") : " ";
        text += fmt::format(" {}  {:>{}}  ", TerminalText(style.size(folder.sizeBytes)).paddedLeft(sizeWidth),
            folder.itemCount, itemsWidth);
        const TerminalText name = names[index].elidedInMiddle(nameWidth);
        const std::string itsBar = bar(folder.sizeBytes, largest, barWidth, glyphs);
        text += itsBar.empty() ? name.string() : name.paddedRight(nameWidth + kColumnGap.size()) + itsBar;
        text += '\n';
    }
    return text;
}

} // namespace KarvelloCLI
