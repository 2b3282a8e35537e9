#pragma once

#include "Platform/Base/JSONError.h"
#include "Platform/Base/JSONValue.h"

#include <cstddef>
#include <expected>

namespace CleanerCore {

/// What may be spent on values that are read only to be dropped. One budget serves one file, so that a hostile element
/// ends the salvage instead of running the reader out of stack or time.
class DiscardedJSONBudget {
public:
    static constexpr std::size_t maximumDepth = 64;

    /// Walks a value to its end. Every value in it costs one unit, whatever its level; `null` inside of an array or an
    /// object costs nothing. `depth` is the number of indices and keys that lead to the value from the top of the file.
    [[nodiscard]] std::expected<void, Platform::JSONError> discard(const Platform::JSONValue& value, std::size_t depth);

    [[nodiscard]] std::size_t remainingValues() const { return m_remainingValues; }

private:
    [[nodiscard]] std::expected<void, Platform::JSONError> consume(std::size_t depth);

    std::size_t m_remainingValues = 10'000;
};

} // namespace CleanerCore
