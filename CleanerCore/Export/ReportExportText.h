#pragma once

#include "CleanerCore/Export/ReportExportPrivacyMode.h"
#include "CleanerCore/Export/ReportExportRedactionContext.h"
#include "Platform/Base/Date.h"

#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

/// The texts of one export, in the form that its privacy mode asks for: as they are, or behind tokens. What comes out
/// is valid UTF-8 whatever goes in. One object serves one export, in writing order.
class ReportExportText {
public:
    explicit ReportExportText(ReportExportPrivacyMode privacyMode)
        : m_privacyMode(privacyMode)
    {
    }

    std::string path(std::string_view value, std::string_view label);
    std::string name(std::string_view value, std::string_view label);
    std::string identifier(std::string_view value, std::string_view label);
    std::string freeText(std::string_view value, std::string_view label);

    [[nodiscard]] ReportExportPrivacyMode privacyMode() const { return m_privacyMode; }
    /// What a payload says of its privacy mode: nothing in a full export.
    [[nodiscard]] std::optional<std::string_view> privacyMark() const;

private:
    ReportExportPrivacyMode m_privacyMode;
    ReportExportRedactionContext m_context;
};

/// The form of a date in every export; a missing one stays missing.
[[nodiscard]] std::optional<std::string> exportedDate(const std::optional<Platform::Date>& date);

} // namespace CleanerCore
