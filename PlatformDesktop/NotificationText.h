#pragma once

#include <string>
#include <string_view>

/// Texts for a notification service, whatever bytes they are made of: names of files are hostile. The results are UTF-8
/// without controls and without what would turn the text around; bytes that are no text become "\xHH"; what is very long
/// is cut, with an ellipsis.
namespace PlatformDesktop::NotificationText {

/// One line.
[[nodiscard]] std::string title(std::string_view text);
/// With its line feeds.
[[nodiscard]] std::string body(std::string_view text);
/// For a service that takes texts for markup: it shows exactly this one.
[[nodiscard]] std::string escapedMarkup(std::string_view text);
/// For a service that says that it shows texts as they are. Some take tags for tags all the same, so what could begin
/// one gets another bracket: "‹b>".
[[nodiscard]] std::string withoutTags(std::string_view text);

} // namespace PlatformDesktop::NotificationText
