#pragma once

#include <string_view>

namespace KarvelloUI {

/// By what the application's windows are found again.
struct KarvelloWindowID {
    static constexpr std::string_view dashboard = "karvello-dashboard";
};

} // namespace KarvelloUI
