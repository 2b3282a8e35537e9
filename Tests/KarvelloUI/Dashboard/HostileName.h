#pragma once

#include <string>
#include <string_view>

namespace DashboardTests {

/// A name that ends the line, turns the text around, hides a character, looks like markup and is not UTF-8.
inline const std::string kHostileName = "a\n\u202Eb\u200B<b>&amp;\xFF";
/// The same as trees are described.
inline constexpr std::string_view kHostileNameOfTree = R"("a\n\xE2\x80\xAEb\xE2\x80\x8B<b>&amp;\xFF")";
/// How it is to be shown and spoken, everywhere.
inline const std::string kShownHostileName = R"(a\n\u202eb\u200b<b>&amp;\xFF)";

} // namespace DashboardTests
