#pragma once

#include "Platform/Base/FileURL.h"

#include <memory>
#include <string>
#include <string_view>

namespace Platform {

class FolderHandle;

/// Names one item: by its path, or by its name in a folder that is held open. The second is the one that a walk hands
/// out: it costs no path, and no other folder can slip in under it.
class ItemReference {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a URL is the plain form of a reference.
    ItemReference(const FileURL& url);
    ItemReference(std::shared_ptr<const FolderHandle> folder, std::string_view name, DirectoryHint hint);

    /// The folder that the name counts from; none when the item is named by its path.
    [[nodiscard]] const FolderHandle* folder() const { return m_folder.get(); }
    [[nodiscard]] const std::shared_ptr<const FolderHandle>& sharedFolder() const { return m_folder; }
    /// The name in `folder`, or the whole path.
    [[nodiscard]] const std::string& name() const { return m_name; }
    /// Built when asked for.
    [[nodiscard]] FileURL url() const;

private:
    std::shared_ptr<const FolderHandle> m_folder;
    std::string m_name;
    DirectoryHint m_hint = DirectoryHint::isFile;
};

} // namespace Platform
