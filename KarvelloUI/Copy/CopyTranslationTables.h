#pragma once

#include "KarvelloUI/Copy/KarvelloCopyTranslationTemplate.h"
#include "KarvelloUI/Copy/TranslationRows.h"

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace KarvelloUI {

/// The tables of one language. What they are asked is asked of any thread; the templates are compiled at the first
/// sentence that needs them. The rows outlive this.
class CopyTranslationTables {
public:
    explicit CopyTranslationTables(const TranslationRows& rows);

    /// The English sentence in this language. The corrected sentences come first and as they stand, then the other whole
    /// sentences, then the first template whose shape it has, corrected ones before the others. A sentence that no table
    /// knows comes back as it is, and so does one on which the search for a template would take too long.
    [[nodiscard]] std::string translate(std::string_view text) const;
    /// Replaces the known faults of the tables, pair by pair, wherever they stand.
    [[nodiscard]] std::string postProcess(std::string_view text) const;

    /// The corrected ones, then the others.
    [[nodiscard]] const std::vector<KarvelloCopyTranslationTemplate>& templates() const;

private:
    using Sentences = std::unordered_map<std::string_view, std::string>;

    [[nodiscard]] std::optional<std::string> translateByShape(std::string_view text) const;

    TranslationRows m_rows;
    std::vector<TranslationRow> m_corrections; // the pairs that change something
    Sentences m_manualExact;
    Sentences m_exact; // corrected already
    mutable std::once_flag m_templatesOnce;
    mutable std::vector<KarvelloCopyTranslationTemplate> m_templates;
};

} // namespace KarvelloUI
