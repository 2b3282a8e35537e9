#pragma once

#include "Platform/Base/FileURL.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// One root of an insight scan, and which of the folders below it are treated in a way of their own.
class RootPlan {
public:
    /// Every file in `downloadsFolder` matters, if there is such a folder. What lies in another one of `roots` is counted
    /// here, too, but its files are kept by that root alone.
    RootPlan(const Platform::FileURL& root, std::span<const Platform::FileURL> roots,
        const std::optional<Platform::FileURL>& downloadsFolder);

    /// What is kept of the files in one folder; otherwise it is what may get onto a list.
    struct FolderRules {
        bool keepsEveryFile = false;
        bool keepsNothing = false;
    };

    [[nodiscard]] const Platform::FileURL& root() const { return m_root; }
    /// Whether the rules of a folder may differ from those of the root: only then is its path of interest.
    [[nodiscard]] bool hasFolderRules() const { return m_hasFolderRules; }
    [[nodiscard]] FolderRules rules(std::string_view folderPath) const;
    [[nodiscard]] FolderRules rulesOfRoot() const { return rules(m_root.path()); }

private:
    Platform::FileURL m_root;
    std::optional<std::string> m_downloadsFolder;
    std::vector<std::string> m_rootsInside;
    bool m_hasFolderRules = false;
};

} // namespace CleanerCore
