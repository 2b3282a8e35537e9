#pragma once

#include "Platform/Base/FileURL.h"

#include <cstdint>
#include <string_view>

namespace CleanerCore {

/// Which rules count. The Linux table refuses the Trash itself, and what lies there was judged by that table at the place
/// where it came from; so for what may be taken out of a Trash again only the other rules count.
enum class NoTouchScope : std::uint8_t { everywhere, trash };

/// The paths that never become a candidate, whatever the scan roots say, judged by their shape alone: the disk is not
/// looked at. Case does not matter.
class NoTouchPathPolicy {
public:
    /// What has to be known of a folder to judge the items in it. A walk carries it down the tree, so that judging an
    /// item costs a look at its own name only. It fits into 64 bits.
    class State {
    public:
        /// The state of the root folder.
        State() = default;
        static State of(const Platform::FileURL& url, NoTouchScope scope = NoTouchScope::everywhere);

        /// The state of the item `component` in this folder.
        [[nodiscard]] State descend(std::string_view component) const;
        [[nodiscard]] bool isNoTouch() const;

        [[nodiscard]] std::uint64_t bits() const { return m_bits; }
        static State fromBits(std::uint64_t bits);

    private:
        std::uint64_t m_bits = 0;
    };

    [[nodiscard]] static bool isNoTouchPath(const Platform::FileURL& url, NoTouchScope scope = NoTouchScope::everywhere)
    {
        return State::of(url, scope).isNoTouch();
    }
};

} // namespace CleanerCore
