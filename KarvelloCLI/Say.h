#pragma once

#include "KarvelloCLI/Texts/EnglishTexts.h"
#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "KarvelloUI/Copy/OwnText.h"

#include <fmt/format.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace KarvelloCLI {

/// The language of the program's words. One for the whole process, as a locale is: it is settled before the first word
/// and before the first thread, and stays. English without that.
[[nodiscard]] KarvelloUI::AppLanguage spokenLanguage();
void speak(KarvelloUI::AppLanguage language);

/// Where the catalogue has the words, they are taken from there.
[[nodiscard]] KarvelloUI::KarvelloCopy catalogue();

/// One of the program's own texts, by its English wording; `Texts` has it in all languages.
template <typename... Values>
using OwnText = KarvelloUI::OwnText<kEnglishTexts, Values...>;

/// The text at a place of `kEnglishTexts`, in the spoken language.
[[nodiscard]] std::string_view textAt(std::size_t index);

/// A text in the spoken language, with its values put in.
template <typename... Values>
[[nodiscard]] std::string say(OwnText<std::type_identity_t<Values>...> text, const Values&... values)
{
    return fmt::vformat(textAt(text.index()), fmt::make_format_args(values...));
}

/// The text for one or for any other number; French counts none as one.
[[nodiscard]] bool isSingular(std::size_t count);
template <typename... Values>
[[nodiscard]] std::string counted(std::size_t count, OwnText<std::size_t, std::type_identity_t<Values>...> one,
    OwnText<std::size_t, std::type_identity_t<Values>...> many, const Values&... values)
{
    return fmt::vformat(
        textAt(isSingular(count) ? one.index() : many.index()), fmt::make_format_args(count, values...));
}

/// "1 item", "2 items".
[[nodiscard]] inline std::string itemCount(std::size_t count)
{
    return counted(count, "{} item", "{} items");
}

[[nodiscard]] inline std::string fileCount(std::size_t count)
{
    return counted(count, "{} file", "{} files");
}

/// A list of parts: "~/a, ~/b".
[[nodiscard]] std::string joined(std::span<const std::string> parts);

/// A sentence that somebody else made in English: a reason of the engine, an error of the system. What neither the
/// catalogue nor `Texts` knows stays English.
[[nodiscard]] std::string sayReason(std::string_view english);

/// A text of the spoken language, with a full stop if it has none.
[[nodiscard]] std::string withFullStop(std::string_view sentence);

} // namespace KarvelloCLI
