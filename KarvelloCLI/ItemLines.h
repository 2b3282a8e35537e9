#pragma once

#include "KarvelloCLI/TerminalText.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

/// Items one below the other: a size, perhaps an age, then words that are never cut, and what else there is to say.
class ItemLines {
public:
    struct Item {
        std::string_view mark = " ";
        std::string size;
        /// Empty in all items: there is no column for it.
        std::string age;
        std::string words;
        /// Lines of their own below the words.
        std::vector<std::string> notes;
    };

    explicit ItemLines(std::vector<Item> items);

    /// Of what stands before the words.
    [[nodiscard]] std::size_t indent() const;
    [[nodiscard]] std::string text() const;

private:
    std::vector<Item> m_items;
    std::size_t m_sizeWidth = 0;
    std::size_t m_ageWidth = 0;
};

/// A heading, what there is to say of all items, and the items.
[[nodiscard]] std::string headed(std::string_view heading, std::string_view words, std::vector<ItemLines::Item> items);

} // namespace KarvelloCLI
