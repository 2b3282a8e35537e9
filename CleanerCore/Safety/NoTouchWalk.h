#pragma once

#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "Platform/Files/DirectoryEnumerator.h"

namespace CleanerCore {

/// Whether the walk has come to a no-touch path, with `rootState` being that of the folder that is walked. Ask for each
/// item: what is known of a folder is handed down to its entries in the context that the enumerator keeps.
[[nodiscard]] inline bool meetsNoTouch(Platform::DirectoryEnumerator& items, NoTouchPathPolicy::State rootState)
{
    const auto folderState = items.level() == 1 ? rootState : NoTouchPathPolicy::State::fromBits(items.folderContext());
    const auto state = folderState.descend(items.name());
    items.setContextOfDescendants(state.bits());
    return state.isNoTouch();
}

} // namespace CleanerCore
