#pragma once

#include "KarvelloUI/Copy/AppLanguage.h"
#include "Platform/Services/Environment.h"

#include <optional>
#include <span>
#include <string>

namespace KarvelloCLI {

/// The language of the last `--language` among the words of a command line, if it is one. The words need not make sense
/// otherwise: complaints about them are in this language too.
[[nodiscard]] std::optional<KarvelloUI::AppLanguage> languageAskedFor(std::span<const std::string> arguments);

/// The language of messages that `$LC_ALL`, `$LC_MESSAGES` or `$LANG` names, the first of them that is set; `$LANGUAGE`
/// lists those to try before it. English for C and POSIX, for none that Karvello speaks, and where text is not UTF-8.
[[nodiscard]] KarvelloUI::AppLanguage languageOf(const Platform::Environment& environment);

} // namespace KarvelloCLI
