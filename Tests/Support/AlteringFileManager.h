#pragma once

#include "Tests/Support/ForwardingFileManager.h"

#include <functional>
#include <utility>

namespace TestSupport {

/// Does what `inner` does, and lets a test change what is said of an item.
class AlteringFileManager final : public ForwardingFileManager {
public:
    using Alteration = std::function<void(const Platform::ItemReference&, Platform::ResourceValues&)>;

    AlteringFileManager(const Platform::FileManager& inner, Alteration alter)
        : ForwardingFileManager(inner)
        , m_alter(std::move(alter))
    {
    }

    [[nodiscard]] std::expected<Platform::ResourceValues, Platform::FileError> resourceValues(
        const Platform::ItemReference& item) const override
    {
        auto values = ForwardingFileManager::resourceValues(item);
        if (values) {
            m_alter(item, *values);
        }
        return values;
    }

private:
    Alteration m_alter;
};

/// For a volume that keeps no dates.
inline void removeDate(const Platform::ItemReference& /*item*/, Platform::ResourceValues& values)
{
    values.contentModificationDate.reset();
}

} // namespace TestSupport
