#pragma once

#include "CleanerCore/Export/ReportExportPrivacyMode.h"

#include <span>
#include <string>
#include <string_view>

namespace CleanerCore {

/// The value of a cell, guarded against being taken for a formula: where the first scalar that is neither white space
/// nor a control character is "+", "-", "=" or "@", an apostrophe stands in front of the unchanged value.
[[nodiscard]] std::string spreadsheetSafeValue(std::string_view value);

/// Writes comma-separated rows, one a line, each line ended by a line feed. Each cell is made safe for spreadsheets,
/// then quoted where a comma, a quote or a line break in it asks for that. Cells are UTF-8; so is the text.
class CSVWriter {
public:
    /// Begins with the names of the columns; in a redacted file a row of two cells that says so comes before them.
    CSVWriter(std::span<const std::string_view> columns, ReportExportPrivacyMode privacyMode);

    void addRow(std::span<const std::string_view> cells);

    /// Makes room for a text of so many bytes.
    void reserve(std::size_t bytes) { m_text.reserve(bytes); }
    [[nodiscard]] std::string finish() && { return std::move(m_text); }

private:
    void addCell(std::string_view value);

    std::string m_text;
};

} // namespace CleanerCore
