#pragma once

#include "CleanerCore/Insights/InsightWalk.h"
#include "CleanerCore/Insights/WalkSegment.h"
#include "Platform/Files/ItemReference.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace CleanerCore {

/// One walk among those that make up the walk of a root. Whoever holds it as `walking` works with `walk`; the rest is
/// guarded by the pool's lock.
class WalkTask {
public:
    enum class State : std::uint8_t { waiting, walking };
    /// The place in the order of the tree: tasks in lexicographic order come one behind the other.
    using Place = std::vector<std::uint32_t>;

    struct Produced {
        WalkSegment segment;
        bool isLast = false;
    };

    WalkTask(Platform::ItemReference itself, InsightWalk::Start asWhat, Place where = {})
        : folder(std::move(itself))
        , start(asWhat)
        , place(std::move(where))
    {
    }

    Platform::ItemReference folder;
    InsightWalk::Start start;
    Place place;

    State state = State::waiting;
    /// Walked by the thread that reads the segments, as it reads them.
    bool isReadersOwn = false;
    std::deque<Produced> produced;

    std::unique_ptr<WalkDelegate> delegate;
    std::unique_ptr<InsightWalk> walk;
};

} // namespace CleanerCore
