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
/// The same text for a service that takes it for markup.
[[nodiscard]] std::string escapedMarkup(std::string_view text);

} // namespace PlatformDesktop::NotificationText
