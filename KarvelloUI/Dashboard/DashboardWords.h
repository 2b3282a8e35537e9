#pragma once

#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/OwnText.h"
#include "KarvelloUI/Dashboard/Texts/TextTables.h"
#include "KarvelloUI/Sessions/ShownText.h"

#include <QString>
#include <cstdint>
#include <fmt/format.h>
#include <string>
#include <type_traits>

namespace KarvelloUI {

/// The words of the screens in one language: those of the catalogue, and those that only the screens have (`Texts`).
/// Making one costs nothing, so nobody keeps it.
struct DashboardWords : KarvelloCopy {
    constexpr explicit DashboardWords(AppLanguage spoken)
        : KarvelloCopy{{{spoken, CopyHost::linuxDesktop}}}
    {
    }

    template <typename... Values>
    using Own = OwnText<Dashboard::kEnglishTexts, std::type_identity_t<Values>...>;

    /// A text of `Texts`, with its values put in.
    template <typename... Values>
    [[nodiscard]] std::string say(Own<Values...> text, const Values&... values) const
    {
        return fmt::vformat(Dashboard::textsIn(language)[text.index()], fmt::make_format_args(values...));
    }

    /// The text for one or for any other number; French counts none as one.
    template <typename... Values>
    [[nodiscard]] std::string count(std::int64_t number, Own<std::int64_t, Values...> one,
        Own<std::int64_t, Values...> many, const Values&... values) const
    {
        return fmt::vformat(Dashboard::textsIn(language)[isSingular(number) ? one.index() : many.index()],
            fmt::make_format_args(number, values...));
    }

    /// A sentence that the catalogue's tables translate, and the catalogue has no entry of its own for.
    using CopyWording::text;
    /// A size in bytes, as all screens write it.
    using CopyWording::byteSize;
    /// Parts that are in their language already, with " · " between them.
    using CopyWording::joinedParts;
};

/// A text for a screen, whatever names it holds; see `shownText`.
[[nodiscard]] inline QString shown(const std::string& text)
{
    return shownText(text);
}

} // namespace KarvelloUI
