#include "KarvelloUI/Advisors/TrashLedger.h"

#include <algorithm>
#include <iterator>

namespace KarvelloUI {

using CleanerCore::CleanupAuditEntry;

std::size_t TrashLedger::recordMove(const CleanupAuditEntry& entry)
{
    const std::size_t move = m_moves.size();
    const std::size_t firstItem = m_items.size();
    std::vector<std::string_view> paths;
    for (const auto& item : entry.cleanedItems) {
        // Where the place in the Trash is not known there is no way back.
        if (item.destinationURL) {
            paths.push_back(item.candidate.url.path());
            addItem(paths.back(), item.candidate.sizeBytes, move);
        }
    }
    for (const auto& path : entry.samplePaths) {
        if (std::ranges::find(paths, path) == paths.end()) {
            addItem(path, std::nullopt, move);
        }
    }
    const auto knownCount = static_cast<std::int64_t>(m_items.size() - firstItem);
    m_moves.push_back({.left = {
                           .itemCount = std::max({entry.succeededItemCount, knownCount, std::int64_t{1}}),
                           .bytes = std::max<std::int64_t>(entry.affectedBytes, 0),
                       }});
    m_movesByAmount[m_moves.back().left].push(move);
    m_openMoves.push_back(move);
    return move;
}

void TrashLedger::recordRestore(const CleanupAuditEntry& entry)
{
    Search search = takeNamed(entry);
    if (entry.samplePaths.empty() && takeJust(search.rest)) {
        return;
    }
    if (search.isOfNamedMoves || search.isOfAnyMove) {
        takeFromNamedMoves(search);
    }
    if (search.isOfAnyMove) {
        takeFromLatestMoves(search.rest);
    }
}

std::optional<TrashLedger::Amount> TrashLedger::whatIsLeft(std::size_t move) const
{
    if (!m_moves[move].isTouched) {
        return std::nullopt;
    }
    return isGone(move) ? Amount{} : m_moves[move].left;
}

void TrashLedger::addItem(std::string_view path, std::optional<std::int64_t> bytes, std::size_t move)
{
    const std::size_t item = m_items.size();
    m_items.push_back({.move = move, .bytes = bytes});
    m_itemsByPath[path].push_back(item);
    if (bytes) {
        m_itemsBySize[*bytes].push_back(item);
    }
}

bool TrashLedger::isGone(std::size_t move) const
{
    const Amount& left = m_moves[move].left;
    return left.itemCount == 0 || left.bytes == 0;
}

std::optional<std::size_t> TrashLedger::latest(ItemStack& stack) const
{
    while (
        !stack.empty() && (m_items[stack.back()].isBack || m_moves[m_items[stack.back()].move].left.itemCount == 0)) {
        stack.pop_back();
    }
    return stack.empty() ? std::nullopt : std::optional(stack.back());
}

TrashLedger::Search TrashLedger::takeNamed(const CleanupAuditEntry& entry)
{
    const auto pathCount = std::ssize(entry.samplePaths);
    const std::int64_t unnamedCount = std::max<std::int64_t>(entry.succeededItemCount - pathCount, 0);
    Search search{
        .rest = {.itemCount = unnamedCount, .bytes = std::max<std::int64_t>(entry.affectedBytes, 0)},
        .isOfAnyMove = unnamedCount > 0 || pathCount == 0,
    };
    for (const auto& path : entry.samplePaths) {
        const auto stack = m_itemsByPath.find(path);
        const auto found = stack == m_itemsByPath.end() ? std::nullopt : latest(stack->second);
        if (!found) {
            continue;
        }
        Item& item = m_items[*found];
        item.isBack = true;
        const std::int64_t bytes = item.bytes.value_or(0);
        const std::int64_t taken = take(item.move, {.itemCount = 1, .bytes = bytes});
        search.rest.bytes = std::max<std::int64_t>(search.rest.bytes - taken, 0);
        search.namedMoves.push_back(item.move);
        search.isOfNamedMoves = search.isOfNamedMoves || !item.bytes;
        // Without paths, an earlier restore was taken for one of this move.
        search.isOfAnyMove = search.isOfAnyMove || taken < bytes;
    }
    return search;
}

void TrashLedger::takeFromNamedMoves(Search& search)
{
    // A move without items left tells just how many bytes were its own, so the others get what these leave.
    std::ranges::stable_partition(
        search.namedMoves, [this](std::size_t move) { return m_moves[move].left.itemCount == 0; });
    for (const std::size_t move : search.namedMoves) {
        takeUpTo(move, search.rest);
    }
}

bool TrashLedger::takeJust(const Amount& amount)
{
    const auto wholeMove = latestMoveWithJust(amount);
    if (const auto item = amount.itemCount == 1 ? latestItemWithJust(amount.bytes) : std::nullopt;
        item && (!wholeMove || m_items[*item].move >= *wholeMove)) {
        m_items[*item].isBack = true;
        take(m_items[*item].move, amount);
        return true;
    }
    if (wholeMove) {
        take(*wholeMove, amount);
    }
    return wholeMove.has_value();
}

std::optional<std::size_t> TrashLedger::latestItemWithJust(std::int64_t bytes)
{
    const auto stack = m_itemsBySize.find(bytes);
    const auto item = stack == m_itemsBySize.end() ? std::nullopt : latest(stack->second);
    if (!item) {
        return std::nullopt;
    }
    // What was taken for another's may leave less than the item, and the last item has all the bytes that are left.
    const Amount& left = m_moves[m_items[*item].move].left;
    return left.bytes == bytes || (left.bytes > bytes && left.itemCount > 1) ? item : std::nullopt;
}

void TrashLedger::takeFromLatestMoves(Amount rest)
{
    while (rest.bytes > 0 && !m_openMoves.empty()) {
        if (isGone(m_openMoves.back())) {
            m_openMoves.pop_back();
        } else {
            takeUpTo(m_openMoves.back(), rest);
        }
    }
}

std::optional<std::size_t> TrashLedger::latestMoveWithJust(const Amount& amount)
{
    const auto found = m_movesByAmount.find(amount);
    if (found == m_movesByAmount.end()) {
        return std::nullopt;
    }
    auto& moves = found->second;
    while (!moves.empty() && m_moves[moves.top()].left != amount) {
        moves.pop();
    }
    return moves.empty() ? std::nullopt : std::optional(moves.top());
}

std::int64_t TrashLedger::take(std::size_t move, const Amount& amount)
{
    Amount& left = m_moves[move].left;
    const std::int64_t bytes = std::min(left.bytes, amount.bytes);
    left.itemCount -= std::min(left.itemCount, amount.itemCount);
    left.bytes -= bytes;
    noteChange(move);
    return bytes;
}

void TrashLedger::takeUpTo(std::size_t move, Amount& rest)
{
    Amount& left = m_moves[move].left;
    Amount taken{.itemCount = std::min(left.itemCount, rest.itemCount), .bytes = std::min(left.bytes, rest.bytes)};
    if (taken.itemCount == left.itemCount && taken.bytes < left.bytes && left.itemCount > 0) {
        --taken.itemCount;
    }
    left.itemCount -= taken.itemCount;
    left.bytes -= taken.bytes;
    rest.itemCount -= taken.itemCount;
    rest.bytes -= taken.bytes;
    noteChange(move);
}

void TrashLedger::noteChange(std::size_t move)
{
    m_moves[move].isTouched = true;
    m_movesByAmount[m_moves[move].left].push(move);
}

} // namespace KarvelloUI
