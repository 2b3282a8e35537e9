#include "CleanerCore/Export/CSVWriter.h"

#include "Platform/Base/Text.h"

#include <array>

namespace CleanerCore {

namespace {

bool looksLikeFormula(std::string_view value)
{
    while (!value.empty()) {
        const auto scalar = Platform::Text::takeScalar(value);
        if (!Platform::Text::isUnicodeWhitespace(scalar) && !Platform::Text::isControl(scalar)) {
            return scalar == U'+' || scalar == U'-' || scalar == U'=' || scalar == U'@';
        }
    }
    return false;
}

} // namespace

std::string spreadsheetSafeValue(std::string_view value)
{
    std::string safe(looksLikeFormula(value) ? "'" : "");
    return safe.append(value);
}

CSVWriter::CSVWriter(std::span<const std::string_view> columns, ReportExportPrivacyMode privacyMode)
{
    if (privacyMode == ReportExportPrivacyMode::redacted) {
        addRow(std::array<std::string_view, 2>{"privacy_mode", Platform::rawValue(privacyMode)});
    }
    addRow(columns);
}

void CSVWriter::addRow(std::span<const std::string_view> cells)
{
    bool isFirst = true;
    for (const auto cell : cells) {
        if (!isFirst) {
            m_text += ',';
        }
        isFirst = false;
        addCell(cell);
    }
    m_text += '\n';
}

void CSVWriter::addCell(std::string_view value)
{
    const std::string_view guard = looksLikeFormula(value) ? "'" : "";
    if (value.find_first_of(",\"\n\r") == std::string_view::npos) {
        m_text.append(guard).append(value);
        return;
    }
    m_text.append("\"").append(guard);
    for (const char byte : value) {
        if (byte == '"') {
            m_text += '"';
        }
        m_text += byte;
    }
    m_text += '"';
}

} // namespace CleanerCore
