#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// Replaces every occurrence of `from`, which is not empty, from the front on; what has been put in is not looked at
/// again. Gives false and leaves the text half done when it would grow beyond `maximumSize` bytes.
inline bool replaceAll(std::string& text, std::string_view from, std::string_view to,
    std::size_t maximumSize = std::numeric_limits<std::size_t>::max())
{
    for (std::size_t place = text.find(from); place != std::string::npos; place = text.find(from, place + to.size())) {
        if (text.size() - from.size() + to.size() > maximumSize) {
            return false;
        }
        text.replace(place, from.size(), to);
    }
    return true;
}

} // namespace KarvelloUI
