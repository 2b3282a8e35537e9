#include "KarvelloUI/Copy/CopyTranslationTables.h"

#include "KarvelloUI/Copy/ReplaceAll.h"

#include <cstddef>

namespace KarvelloUI {

namespace {

/// Longer than any sentence of ours with the longest path in it.
constexpr std::size_t kMaximumSentence = 8 * 1024; // bytes

} // namespace

CopyTranslationTables::CopyTranslationTables(const TranslationRows& rows)
    : m_rows(rows)
{
    for (const TranslationRow& pair : rows.postProcess) {
        if (pair.english != pair.translation && !pair.english.empty()) {
            m_corrections.push_back(pair);
        }
    }
    m_manualExact.reserve(rows.manualExact.size());
    for (const TranslationRow& row : rows.manualExact) {
        m_manualExact.emplace(row.english, row.translation);
    }
    m_exact.reserve(rows.exact.size());
    for (const TranslationRow& row : rows.exact) {
        m_exact.emplace(row.english, postProcess(row.translation));
    }
}

std::string CopyTranslationTables::translate(std::string_view text) const
{
    if (const auto row = m_manualExact.find(text); row != m_manualExact.end()) {
        return row->second;
    }
    if (const auto row = m_exact.find(text); row != m_exact.end()) {
        return row->second;
    }
    auto translation = translateByShape(text);
    return translation ? *std::move(translation) : std::string(text);
}

std::optional<std::string> CopyTranslationTables::translateByShape(std::string_view text) const
{
    if (text.size() > kMaximumSentence) {
        return std::nullopt;
    }
    MatchableSentence sentence(text);
    MatchBudget budget;
    for (const KarvelloCopyTranslationTemplate& row : templates()) {
        const auto translation = row.translation(sentence, budget);
        if (!translation) {
            return std::nullopt;
        }
        if (*translation) {
            return postProcess(**translation);
        }
    }
    return std::nullopt;
}

std::string CopyTranslationTables::postProcess(std::string_view text) const
{
    std::string result(text);
    for (const TranslationRow& pair : m_corrections) {
        replaceAll(result, pair.english, pair.translation);
    }
    return result;
}

const std::vector<KarvelloCopyTranslationTemplate>& CopyTranslationTables::templates() const
{
    std::call_once(m_templatesOnce, [this] {
        m_templates.reserve(m_rows.manualTemplate.size() + m_rows.generatedTemplate.size());
        for (const auto rows : {m_rows.manualTemplate, m_rows.generatedTemplate}) {
            for (const TranslationRow& row : rows) {
                m_templates.emplace_back(row.english, row.translation);
            }
        }
    });
    return m_templates;
}

} // namespace KarvelloUI
