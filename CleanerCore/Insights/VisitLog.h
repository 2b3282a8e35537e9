#pragma once

#include "CleanerCore/Scan/SkippedItem.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace CleanerCore {

/// Something that a walk met, and how many items it had visited before.
template <typename Thing>
struct AtVisit {
    std::size_t visitsBefore = 0;
    Thing thing;
};

/// What each visit of a walk came to. Whoever counts against a budget may find later that fewer visits were allowed, and
/// takes the log up to there.
class VisitLog {
public:
    struct Totals {
        std::int64_t byteSize = 0;
        std::int64_t itemCount = 0;
    };

    [[nodiscard]] std::size_t visits() const { return m_visits.size(); }

    /// An item that counts, and its bytes; a sum beyond the range stays at its limit.
    void addItem(std::int64_t bytes);
    /// An item that does not count: a symbolic link.
    void addUncounted() { m_visits.push_back(kUncounted); }
    /// An item that could not be looked at.
    void addFailure(SkippedItem item);
    /// A folder that could not be listed, met before the next visit.
    void addEnumerationError(SkippedItem item) { m_enumerationErrors.push_back({visits(), std::move(item)}); }

    [[nodiscard]] Totals totals() const { return m_totals; }
    /// Of the first `visits`.
    [[nodiscard]] Totals totals(std::size_t visits) const;
    /// Hands over what happened in the first `visits`, and on the way to the one that follows.
    void moveSkippedItems(
        std::size_t visits, std::vector<SkippedItem>& failures, std::vector<SkippedItem>& enumerationErrors);

private:
    static constexpr std::int64_t kUncounted = -1;

    std::vector<std::int64_t> m_visits;
    Totals m_totals;
    std::vector<AtVisit<SkippedItem>> m_failures;
    std::vector<AtVisit<SkippedItem>> m_enumerationErrors;
};

} // namespace CleanerCore
