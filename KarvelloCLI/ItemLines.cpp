#include "KarvelloCLI/ItemLines.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TableLayout.h"
#include "KarvelloCLI/TerminalText.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace KarvelloCLI {

ItemLines::ItemLines(std::vector<Item> items)
    : m_items(std::move(items))
{
    for (const Item& item : m_items) {
        m_sizeWidth = std::max(m_sizeWidth, columnsOf(item.size));
        m_ageWidth = std::max(m_ageWidth, columnsOf(item.age));
    }
}

std::size_t ItemLines::indent() const
{
    return kMarkWidth + m_sizeWidth + kColumnGap.size() + (m_ageWidth > 0 ? m_ageWidth + kColumnGap.size() : 0);
}

std::string ItemLines::text() const
{
    std::string text;
    for (const Item& item : m_items) {
        text += fmt::format("{} {}  ", item.mark, TerminalText(item.size).paddedLeft(m_sizeWidth));
        if (m_ageWidth > 0) {
            text += TerminalText(item.age).paddedLeft(m_ageWidth) + "  ";
        }
        text += item.words;
        text += '\n';
        for (const std::string& note : item.notes) {
            text += fmt::format("{:{}}{}\n", "", indent(), note);
        }
    }
    return text;
}

std::string headed(std::string_view heading, std::string_view words, std::vector<ItemLines::Item> items)
{
    return say("{}: {}", heading, words) + '\n' + ItemLines(std::move(items)).text();
}

} // namespace KarvelloCLI
