#pragma once

#include <string>
#include <string_view>

namespace Platform::Text {

/// The form in which a search compares texts: capitals and small letters are the same, accents and the points of Hebrew
/// and Arabic are left out, and it makes no difference whether a character came composed or in parts. Marks that make
/// another sound of a letter, as in Japanese and the scripts of India, stay. Bytes that are part of no character stay as
/// they are. Folding a part of a text gives a part of the folded text, where no character is cut. May be called from any
/// thread.
[[nodiscard]] std::string foldedForSearch(std::string_view text);

} // namespace Platform::Text
