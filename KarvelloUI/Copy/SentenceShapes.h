#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// Sentences that somebody else made in English, each with a `{}` for every part that changes, and the same in another
/// language, each in the place of its English one.
struct SentenceShapes {
    std::span<const std::string_view> english;
    std::span<const std::string_view> translated;

    /// The finished sentence in the other language, or nothing if it has none of the shapes. Names and paths come in as
    /// they are, even one that reads like a sentence of ours; only what follows "because" is translated too.
    [[nodiscard]] std::optional<std::string> translation(std::string_view sentence) const;
};

} // namespace KarvelloUI
