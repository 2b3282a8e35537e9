#include "KarvelloCLI/Ink.h"

#include <fmt/format.h>

namespace KarvelloCLI {

namespace {

/// Parameters of "select graphic rendition" (ECMA-48, 8.3.117); the eight basic colours follow the user's own scheme.
std::string_view renditionOf(Ink ink)
{
    switch (ink) {
    case Ink::title:
        return "1";
    case Ink::quiet:
        return "2";
    case Ink::safe:
        return "1;32";
    case Ink::caution:
    case Ink::warning:
        return "1;33";
    case Ink::manualReview:
        return "1;35";
    }
    return "0";
}

} // namespace

Ink inkOf(CleanerCore::CleanupSafety safety)
{
    switch (safety) {
    case CleanerCore::CleanupSafety::safe:
        return Ink::safe;
    case CleanerCore::CleanupSafety::caution:
        return Ink::caution;
    case CleanerCore::CleanupSafety::manualReview:
        break;
    }
    return Ink::manualReview;
}

std::string Painter::operator()(Ink ink, std::string_view text) const
{
    return m_usesColor && !text.empty() ? fmt::format("\x1b[{}m{}\x1b[0m", renditionOf(ink), text) : std::string(text);
}

} // namespace KarvelloCLI
