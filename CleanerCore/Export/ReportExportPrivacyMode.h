#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace CleanerCore {

/// Whether an export tells paths and names, or hides them behind tokens.
enum class ReportExportPrivacyMode : std::uint8_t { full, redacted };

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::ReportExportPrivacyMode> {
    static constexpr std::array<std::string_view, 2> names{"full", "redacted"};
};
