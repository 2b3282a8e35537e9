#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// What a search looks at in each candidate of a report, folded once for all searches and all languages. Immutable.
class CandidateSearchKeys {
public:
    CandidateSearchKeys() = default;
    explicit CandidateSearchKeys(std::span<const CleanerCore::CleanupCandidate> candidates);

    /// Path and name of the candidate at `position`, folded.
    [[nodiscard]] std::string_view key(std::size_t position) const
    {
        return std::string_view(m_text).substr(m_starts[position], m_starts[position + 1] - m_starts[position]);
    }
    [[nodiscard]] std::size_t size() const { return m_starts.size() - 1; }

    static constexpr std::uint32_t kNoContext = 0xFFFF'FFFF;
    /// The different contexts of all candidates.
    [[nodiscard]] const std::vector<CleanerCore::AppCacheContext>& contexts() const { return m_contexts; }
    /// Which of them the candidate at `position` has.
    [[nodiscard]] std::uint32_t context(std::size_t position) const { return m_contextOf[position]; }

private:
    /// All keys, one behind another: a search runs over them as over one text.
    std::string m_text;
    std::vector<std::size_t> m_starts = {0};
    std::vector<CleanerCore::AppCacheContext> m_contexts;
    std::vector<std::uint32_t> m_contextOf;
};

} // namespace KarvelloUI
