#include "CleanerCore/Audit/DiscardedJSONBudget.h"

namespace CleanerCore {

std::expected<void, Platform::JSONError> DiscardedJSONBudget::consume(std::size_t depth)
{
    if (depth > maximumDepth) {
        return std::unexpected(Platform::JSONError{"Discarded audit JSON exceeded maximum nesting depth", {}});
    }
    if (m_remainingValues == 0) {
        return std::unexpected(Platform::JSONError{"Discarded audit JSON exceeded maximum value budget", {}});
    }
    --m_remainingValues;
    return {};
}

// Calls itself, but never deeper than the maximum: what it consumes first tells it to stop.
std::expected<void, Platform::JSONError> DiscardedJSONBudget::discard(
    const Platform::JSONValue& value, std::size_t depth)
{
    if (auto consumed = consume(depth); !consumed) {
        return consumed;
    }
    const auto discardInner = [&](const Platform::JSONValue& inner) -> std::expected<void, Platform::JSONError> {
        return inner.isNull() ? std::expected<void, Platform::JSONError>() : discard(inner, depth + 1);
    };
    if (const auto* const elements = value.array()) {
        for (const auto& element : *elements) {
            if (auto discarded = discardInner(element); !discarded) {
                return discarded;
            }
        }
    } else if (const auto* const members = value.object()) {
        for (const auto& member : *members) {
            if (auto discarded = discardInner(member.value); !discarded) {
                return discarded;
            }
        }
    }
    return {};
}

} // namespace CleanerCore
