#include "CleanerCore/Export/ReportExportText.h"

#include "Platform/Base/DateFormat.h"
#include "Platform/Base/Text.h"

namespace CleanerCore {

namespace {

using Platform::Text::escapingInvalidUTF8;

} // namespace

std::string ReportExportText::path(std::string_view value, std::string_view label)
{
    return m_privacyMode == ReportExportPrivacyMode::full ? escapingInvalidUTF8(value) : m_context.path(value, label);
}

std::string ReportExportText::name(std::string_view value, std::string_view label)
{
    return m_privacyMode == ReportExportPrivacyMode::full ? escapingInvalidUTF8(value) : m_context.name(value, label);
}

std::string ReportExportText::identifier(std::string_view value, std::string_view label)
{
    return m_privacyMode == ReportExportPrivacyMode::full ? escapingInvalidUTF8(value)
                                                          : m_context.identifier(value, label);
}

std::string ReportExportText::freeText(std::string_view value, std::string_view label)
{
    // A text without a path comes back from the context as it is, so its bytes may need escaping all the same.
    return escapingInvalidUTF8(
        m_privacyMode == ReportExportPrivacyMode::full ? std::string(value) : m_context.freeText(value, label));
}

std::optional<std::string_view> ReportExportText::privacyMark() const
{
    if (m_privacyMode == ReportExportPrivacyMode::full) {
        return std::nullopt;
    }
    return Platform::rawValue(m_privacyMode);
}

std::optional<std::string> exportedDate(const std::optional<Platform::Date>& date)
{
    return date ? std::optional(Platform::DateFormat::iso8601(*date)) : std::nullopt;
}

} // namespace CleanerCore
