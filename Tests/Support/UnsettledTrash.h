#pragma once

#include "Platform/Files/Trash.h"

namespace TestSupport {

/// Does what `inner` does, which must outlive it, but brings nothing to the disk: a test with hundreds of rounds asks
/// where items are, not whether they outlive a loss of power.
class UnsettledTrash final : public Platform::Trash {
public:
    explicit UnsettledTrash(Platform::Trash& inner)
        : m_inner(inner)
    {
    }

    [[nodiscard]] std::expected<std::optional<Platform::FileURL>, Platform::FileError> trashItem(
        const Platform::ItemAnchor& anchor) override
    {
        return m_inner.trashItem(anchor);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> restoreItem(const Platform::RestoreAnchor& anchor) override
    {
        return m_inner.restoreItem(anchor);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> removeItem(const Platform::ItemAnchor& anchor) override
    {
        return m_inner.removeItem(anchor);
    }
    [[nodiscard]] std::expected<void, Platform::FileError> settle() override { return {}; }
    [[nodiscard]] std::vector<Platform::FileURL> trashDirectories(const Platform::FileURL& url) const override
    {
        return m_inner.trashDirectories(url);
    }

private:
    Platform::Trash& m_inner;
};

} // namespace TestSupport
