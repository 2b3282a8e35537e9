#pragma once

#include "KarvelloCLI/Ink.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/TerminalText.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Services/Environment.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace KarvelloCLI {

/// How text for a person is written: the room, the colours, the form of sizes and paths.
struct TextStyle {
    std::size_t columns = 100;
    Painter painter{false};
    bool isVerbose = false;
    HomePathAbbreviation paths;

    /// For what is written to `descriptor`; -1 for a file.
    static TextStyle of(const CommonOptions& options, int descriptor, const Platform::FileURL& home,
        const Platform::Environment& environment);

    [[nodiscard]] std::string size(std::int64_t bytes) const;
    /// More than 63 bits hold is shown as what they hold.
    [[nodiscard]] std::string size(std::uint64_t bytes) const;
    /// The whole path: what is to be confirmed must not be cut.
    [[nodiscard]] std::string path(const Platform::FileURL& url) const;
    /// Lines that fit, each behind `indent` blanks.
    [[nodiscard]] std::string paragraph(
        std::string_view words, std::size_t indent = 0, std::optional<Ink> ink = std::nullopt) const;
};

} // namespace KarvelloCLI
