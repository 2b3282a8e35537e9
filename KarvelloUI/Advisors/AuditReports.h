#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleanupStorageImpactReport.h"
#include "Platform/Base/UUID.h"

#include <span>
#include <vector>

namespace KarvelloUI {

/// A clean of the audit log, less what has gone back from the Trash since.
struct AuditReport {
    /// That of the entry.
    Platform::UUID id;
    CleanerCore::CleanupStorageImpactReport report;

    friend bool operator==(const AuditReport&, const AuditReport&) = default;
};

/// The cleans among `entries`, which may come in any order, from the oldest to the newest. Moves of which everything
/// went back are left out; of the others `succeededItemCount` and `affectedBytes` tell what is left.
///
/// How restores are paired with moves. An entry names up to five paths until it is stored, and none from then on. A
/// clean keeps its items, a restore has none. So a restore is paired by its paths where it has any, else by its figures:
///
/// 1. A restore takes from moves of its own source that are not younger than itself. Entries count in the order of their
///    dates; of one date a clean comes before a restore, then the smaller id. A permanent deletion gives nothing back.
/// 2. A path belongs to the latest of these moves that holds it and from which it did not go back before. A path that
///    none holds (the move has left the log) takes nothing from any.
/// 3. More items than paths, and bytes beyond the known sizes of the named items, come from the moves that the paths led
///    to; what of the unnamed items these cannot have held comes from others as in 5.
/// 4. A restore without any path is that of a whole move if number and bytes are just what a move has left, and that of
///    one item if it is of one and a move holds an item of just this size: the latest of such moves.
/// 5. Otherwise it takes from the latest move whatever that has left, then from the one before, until its bytes are
///    found. The application restores from its latest clean, and the command line from the latest on.
///
/// So all moves together go down by what restores brought back; only which of several moves goes down is a conclusion
/// where paths are missing. A move that has no items or no bytes left is gone.
[[nodiscard]] std::vector<AuditReport> auditReportsLessRestores(
    std::span<const CleanerCore::CleanupAuditEntry> entries);

} // namespace KarvelloUI
