#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <queue>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace KarvelloUI {

/// What the moves to the Trash of one source have left there. Entries are told from the oldest to the newest, and must
/// outlive the ledger. `auditReportsLessRestores` has the rules.
class TrashLedger {
public:
    struct Amount {
        std::int64_t itemCount = 0;
        std::int64_t bytes = 0;

        friend auto operator<=>(const Amount&, const Amount&) = default;
    };

    /// Returns the number of the move, which counts from 0.
    std::size_t recordMove(const CleanerCore::CleanupAuditEntry& entry);
    void recordRestore(const CleanerCore::CleanupAuditEntry& entry);

    /// What a move has left: nothing at all once its items or its bytes are gone. Absent if no restore touched it.
    [[nodiscard]] std::optional<Amount> whatIsLeft(std::size_t move) const;

private:
    struct Item {
        std::size_t move = 0;
        /// Absent where only the path is known.
        std::optional<std::int64_t> bytes = {};
        bool isBack = false;
    };
    struct Move {
        Amount left;
        bool isTouched = false;
    };
    /// What of a restore has not found its move yet.
    struct Search {
        Amount rest;
        /// Moves that a path of the restore led to, in the order of the paths.
        std::vector<std::size_t> namedMoves = {};
        /// The rest holds bytes of the named moves.
        bool isOfNamedMoves = false;
        /// The rest holds bytes of any move.
        bool isOfAnyMove = false;
    };
    /// Items by some key, those of later moves at the end.
    using ItemStack = std::vector<std::size_t>;

    void addItem(std::string_view path, std::optional<std::int64_t> bytes, std::size_t move);
    [[nodiscard]] bool isGone(std::size_t move) const;
    /// The latest of the stack that has not gone back; takes those that have off it.
    std::optional<std::size_t> latest(ItemStack& stack) const;

    Search takeNamed(const CleanerCore::CleanupAuditEntry& entry);
    void takeFromNamedMoves(Search& search);
    /// False if nothing has just this amount.
    bool takeJust(const Amount& amount);
    void takeFromLatestMoves(Amount rest);
    std::optional<std::size_t> latestItemWithJust(std::int64_t bytes);
    std::optional<std::size_t> latestMoveWithJust(const Amount& amount);

    /// What is known to be of this move. Returns how many bytes it had left for that.
    std::int64_t take(std::size_t move, const Amount& amount);
    /// As much of `rest` as the move can have held. While bytes are left so is an item.
    void takeUpTo(std::size_t move, Amount& rest);
    void noteChange(std::size_t move);

    std::vector<Move> m_moves;
    std::vector<Item> m_items;
    std::unordered_map<std::string_view, ItemStack> m_itemsByPath;
    std::unordered_map<std::int64_t, ItemStack> m_itemsBySize;
    /// Moves by what they had left at some time, the latest on top; a look finds out whether they still have.
    std::map<Amount, std::priority_queue<std::size_t>> m_movesByAmount;
    /// Moves that may have something left, the latest at the end.
    std::vector<std::size_t> m_openMoves;
};

} // namespace KarvelloUI
