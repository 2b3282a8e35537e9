#pragma once

#include "Platform/Files/Trash.h"

namespace Rigs {

/// A mover as it is written without thought: it checks by path and then moves by path, writes its record in place,
/// believes every call, and puts things back onto whatever stands there. A rig that does not catch it proves nothing.
class NaiveTrash final : public Platform::Trash {
public:
    NaiveTrash(const Platform::FileManager& fileManager, const Platform::FileURL& dataHome);

    [[nodiscard]] std::expected<std::optional<Platform::FileURL>, Platform::FileError> trashItem(
        const Platform::ItemAnchor& anchor) override;
    [[nodiscard]] std::expected<void, Platform::FileError> restoreItem(const Platform::RestoreAnchor& anchor) override;
    [[nodiscard]] std::expected<void, Platform::FileError> removeItem(const Platform::ItemAnchor& anchor) override;
    [[nodiscard]] std::expected<void, Platform::FileError> settle() override { return {}; }
    [[nodiscard]] std::vector<Platform::FileURL> trashDirectories(const Platform::FileURL& url) const override;

private:
    [[nodiscard]] std::string recordPath(std::string_view name) const;

    const Platform::FileManager& m_fileManager;
    Platform::FileURL m_trash;
};

} // namespace Rigs
