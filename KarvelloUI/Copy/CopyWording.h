#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Copy/CopyHost.h"
#include "KarvelloUI/Copy/OwnText.h"
#include "KarvelloUI/Copy/Texts/TextTables.h"

#include <cstdint>
#include <fmt/format.h>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace KarvelloUI {

/// How the texts of a catalogue are made in one language.
struct CopyWording {
    AppLanguage language;
    /// The tables speak of this one; where its names are none of the machine's, the catalogue has own texts.
    CopyHost host = CopyHost::mac;

    [[nodiscard]] std::string_view locale() const { return Platform::rawValue(language); }

    friend bool operator==(const CopyWording&, const CopyWording&) = default;

protected:
    /// The rule of every entry: Korean stands in the code, and what is not Korean comes from the English.
    [[nodiscard]] std::string text(std::string_view korean, std::string_view english) const
    {
        return language == AppLanguage::korean ? std::string(korean) : localizedEnglishCopy(language, english);
    }

    /// The same for a sentence with values, which is put together before it is looked up.
    template <typename... Values>
    [[nodiscard]] std::string sentence(fmt::format_string<const Values&...> korean,
        fmt::format_string<const Values&...> english, const Values&... values) const
    {
        return language == AppLanguage::korean ? fmt::format(korean, values...)
                                               : localizedEnglishCopy(language, fmt::format(english, values...));
    }

    /// The same for a sentence about a number of things. The tables know the shape for many alone, so the one for 1 is
    /// English only.
    template <typename... Values>
    [[nodiscard]] std::string counted(std::int64_t count, fmt::format_string<const Values&...> korean,
        fmt::format_string<const Values&...> englishOne, fmt::format_string<const Values&...> english,
        const Values&... values) const
    {
        return language == AppLanguage::english && count == 1 ? fmt::format(englishOne, values...)
                                                              : sentence<Values...>(korean, english, values...);
    }

    /// A sentence around a text that comes in finished, `{0}`: a date, a path, a text of this language. The sentence is
    /// looked up without it, so that a comma in it does not give the sentence to the row of two parts with a comma.
    template <typename... Values>
    [[nodiscard]] std::string around(std::string_view part,
        fmt::format_string<const std::string_view&, const Values&...> korean,
        fmt::format_string<const std::string_view&, const Values&...> english, const Values&... values) const
    {
        static constexpr std::string_view kStandIn = "\uFFFC";
        std::string text = sentence<std::string_view, Values...>(korean, english, kStandIn, values...);
        return text.replace(text.find(kStandIn), kStandIn.size(), part);
    }

    /// A sentence for which the tables have no row, with its values put in: `Texts` has it in all languages.
    template <typename... Values>
    [[nodiscard]] std::string own(
        OwnText<Copy::kEnglishTexts, std::type_identity_t<Values>...> text, const Values&... values) const
    {
        return fmt::vformat(Copy::textsIn(language)[text.index()], fmt::make_format_args(values...));
    }

    /// The same for one or for any other number; French counts none as one.
    template <typename... Values>
    [[nodiscard]] std::string ownCount(std::int64_t number,
        OwnText<Copy::kEnglishTexts, std::int64_t, std::type_identity_t<Values>...> one,
        OwnText<Copy::kEnglishTexts, std::int64_t, std::type_identity_t<Values>...> many, const Values&... values) const
    {
        return fmt::vformat(Copy::textsIn(language)[isSingular(number) ? one.index() : many.index()],
            fmt::make_format_args(number, values...));
    }

    /// A finished sentence that the engine or the system made in English; one that is not known comes back as it is.
    [[nodiscard]] std::string engineSentence(std::string_view english) const;

    /// Whether the language takes its sentence for one.
    [[nodiscard]] bool isSingular(std::int64_t number) const
    {
        return number == 1 || (number == 0 && language == AppLanguage::french);
    }
    [[nodiscard]] bool isLinux() const { return host == CopyHost::linuxDesktop; }

    [[nodiscard]] std::string byteSize(std::int64_t bytes) const;
    /// Parts that are in their language already, with " · " between them.
    [[nodiscard]] static std::string joinedParts(const std::vector<std::string>& parts);
};

} // namespace KarvelloUI
