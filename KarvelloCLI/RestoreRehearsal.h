#pragma once

#include "Platform/Files/FileManager.h"
#include "Platform/Files/Trash.h"

namespace KarvelloCLI {

/// A Trash that moves nothing and says yes: what a restore that is held against it refuses, the real one would refuse,
/// too. A yes here promises nothing, since much may change until it counts.
class RestoreRehearsal final : public Platform::Trash {
public:
    /// Both must outlive the rehearsal.
    RestoreRehearsal(const Platform::FileManager& fileManager, const Platform::Trash& trash)
        : m_fileManager(fileManager)
        , m_trash(trash)
    {
    }

    using Move = std::expected<std::optional<Platform::FileURL>, Platform::FileError>;
    using Outcome = std::expected<void, Platform::FileError>;

    [[nodiscard]] Move trashItem(const Platform::ItemAnchor& anchor) override;
    [[nodiscard]] Outcome restoreItem(const Platform::RestoreAnchor& anchor) override;
    [[nodiscard]] Outcome removeItem(const Platform::ItemAnchor& anchor) override;
    [[nodiscard]] Outcome settle() override { return {}; }
    [[nodiscard]] std::vector<Platform::FileURL> trashDirectories(const Platform::FileURL& url) const override
    {
        return m_trash.trashDirectories(url);
    }

private:
    const Platform::FileManager& m_fileManager;
    const Platform::Trash& m_trash;
};

} // namespace KarvelloCLI
