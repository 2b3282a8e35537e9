#pragma once

#include "CleanerCore/Scan/CleanupSafety.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace KarvelloCLI {

/// What a piece of text is, for the eye. Colour never says anything that the words do not.
enum class Ink : std::uint8_t { title, quiet, safe, caution, manualReview, warning };

[[nodiscard]] Ink inkOf(CleanerCore::CleanupSafety safety);

/// Puts text into colour, or leaves it as it is.
class Painter {
public:
    explicit Painter(bool usesColor)
        : m_usesColor(usesColor)
    {
    }
    [[nodiscard]] std::string operator()(Ink ink, std::string_view text) const;

private:
    bool m_usesColor;
};

} // namespace KarvelloCLI
