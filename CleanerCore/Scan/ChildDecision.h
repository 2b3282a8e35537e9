#pragma once

#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/InventoryEvents.h"
#include "CleanerCore/Scan/InventoryRules.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Files/FileManager.h"

#include <stop_token>
#include <variant>

namespace CleanerCore {

/// What becomes of one child of a root: nothing when the scan was stopped before it was decided.
using ChildOutcome = std::variant<std::monostate, CleanupCandidate, SkippedItem>;

/// Decides the children of one location. Immutable: several threads may decide different children at once. What it is
/// made from must outlive it.
class ChildDecision {
public:
    ChildDecision(const ScanLocation& location, const InventoryRules& rules, const Platform::FileManager& fileManager,
        std::stop_token stop)
        : m_location(location)
        , m_rules(rules)
        , m_fileManager(fileManager)
        , m_rootState(NoTouchPathPolicy::State::of(location.rootURL))
        , m_stop(std::move(stop))
    {
    }

    /// The checks come in a fixed order, and the first that applies gives the reason: what is protected outranks what
    /// is too large, and that outranks what is too young.
    [[nodiscard]] ChildOutcome decide(const Platform::ItemReference& child, InventoryEvents& events) const;

private:
    [[nodiscard]] CleanupCandidate candidate(const Platform::ItemReference& child, const Platform::FileURL& url,
        std::int64_t byteSize, std::optional<Platform::Date> lastModified) const;

    const ScanLocation& m_location;
    InventoryRules m_rules;
    const Platform::FileManager& m_fileManager;
    NoTouchPathPolicy::State m_rootState;
    std::stop_token m_stop;
};

} // namespace CleanerCore
