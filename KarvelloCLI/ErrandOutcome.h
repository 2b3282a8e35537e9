#pragma once

#include "KarvelloCLI/ExitCode.h"

#include <algorithm>

namespace KarvelloCLI {

/// What the shell is told of an errand that was carried out. `movedItems` are those that moved as they should;
/// `mayHaveMoved` tells of a failed item whether something moved all the same.
[[nodiscard]] ExitCode exitCodeOfMoves(const auto& result, const auto& movedItems, auto mayHaveMoved)
{
    if (result.wasCancelled) {
        return ExitCode::interrupted;
    }
    if (result.failedItems.empty()) {
        return ExitCode::done;
    }
    const bool somethingMoved = !movedItems.empty() || std::ranges::any_of(result.failedItems, mayHaveMoved);
    return somethingMoved ? ExitCode::partial : ExitCode::refused;
}

} // namespace KarvelloCLI
