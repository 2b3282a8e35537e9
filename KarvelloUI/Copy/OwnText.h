#pragma once

#include <algorithm>
#include <cstddef>
#include <fmt/format.h>
#include <string_view>

namespace KarvelloUI {

/// One text of a table of texts, by its English wording: `kEnglishTexts` has them all, and each language has its wording
/// in the same place. A text that is not there, or that does not fit its values, does not compile.
template <const auto& kEnglishTexts, typename... Values>
class OwnText {
public:
    consteval OwnText(const char* english) // NOLINT(google-explicit-constructor): a text is written as it is
        : m_index(static_cast<std::size_t>(
              std::ranges::find(kEnglishTexts, std::string_view(english)) - kEnglishTexts.begin()))
    {
        [[maybe_unused]] const fmt::format_string<const Values&...> form{std::string_view(english)};
        if (m_index == kEnglishTexts.size()) {
            throw "there is no such text";
        }
    }

    [[nodiscard]] std::size_t index() const { return m_index; }

private:
    std::size_t m_index;
};

} // namespace KarvelloUI
