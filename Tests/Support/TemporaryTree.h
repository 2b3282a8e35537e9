#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"

#include <string>
#include <string_view>

namespace TestSupport {

/// A folder of its own below the temporary folder, filled from a layout (see `TreeLayout.h` for its language), gone
/// with all that it holds when the object is destroyed: whatever the permissions, the depth and the names in it.
///
/// Everything that cannot be done is a failure of the running test. Where the layout gives no age, an item is
/// `kDefaultAge` seconds older than `now`. Ages are set when the tree is complete, from the leaves up, so a folder's is
/// what the layout says and not the moment of its last entry.
class TemporaryTree {
public:
    static constexpr double kDefaultAge = 30 * 86400.0;

    /// An empty tree for no layout.
    explicit TemporaryTree(std::string_view layout = {}, Platform::Date now = Platform::Date::now());
    ~TemporaryTree();
    TemporaryTree(const TemporaryTree&) = delete;
    TemporaryTree& operator=(const TemporaryTree&) = delete;

    /// Adds to the tree. Folders that are there already keep their age and permissions where the layout gives none.
    void add(std::string_view layout);
    /// Takes an item of the tree away, a folder with all that it holds.
    void remove(std::string_view relativePath);
    /// Sets the age of one item, in seconds before `now`.
    void setAge(std::string_view relativePath, double age);

    /// The top folder; its path holds no symbolic link.
    [[nodiscard]] const Platform::FileURL& root() const { return m_root; }
    /// A path that ends in a slash makes a folder's URL.
    [[nodiscard]] Platform::FileURL url(std::string_view relativePath) const;
    /// For calls of the system: no longer than the system allows only where the tree is not deep.
    [[nodiscard]] std::string path(std::string_view relativePath) const { return url(relativePath).path(); }
    [[nodiscard]] Platform::Date now() const { return m_now; }

private:
    Platform::FileURL m_root;
    Platform::Date m_now;
};

} // namespace TestSupport
