#include "Tests/Support/TemporaryTree.h"

#include "Platform/Files/OpenFolder.h"
#include "Tests/Support/TreeLayout.h"
#include "Tests/Support/TreeRemoval.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

namespace {

using Platform::FileDescriptor;

void reportFailure(std::string_view action, std::string_view name)
{
    ADD_FAILURE() << "the temporary tree could not " << action << " \"" << name << "\": " << std::strerror(errno);
}

timespec timeOf(Platform::Date date)
{
    // The sum of a double and the distance of the two reference dates would lose the digits behind the point.
    const auto whole = std::floor(date.secondsSinceReferenceDate);
    const auto fraction = date.secondsSinceReferenceDate - whole;
    return {.tv_sec = static_cast<time_t>(whole) + Platform::Date::kReferenceDateInUnixTime,
        .tv_nsec = std::min(std::lround(fraction * 1e9), 999'999'999L)};
}

bool setModificationTime(int folder, const std::string& name, timespec time)
{
    const timespec times[2] = {time, time};
    return utimensat(folder, name.c_str(), times, AT_SYMLINK_NOFOLLOW) == 0;
}

/// Makes the items of a layout below an open folder. They come in an order in which each stands behind its folder; it
/// walks from one to the next by handles, and gives a folder its age and permissions when it leaves it for good.
class TreeMaker {
public:
    TreeMaker(FileDescriptor root, std::vector<LayoutItem> items, Platform::Date now)
        : m_root(std::move(root))
        , m_items(std::move(items))
        , m_now(now)
    {
        sortDepthFirst();
    }

    void make()
    {
        for (const auto index : m_order) {
            while (!m_entered.empty() && m_entered.back().item != m_items[index].parent) {
                leaveFolder();
            }
            if (!makeItem(m_items[index])) {
                reportFailure("make", m_items[index].name);
                return;
            }
            if (m_items[index].kind != LayoutKind::folder) {
                finish(here(), m_items[index], std::nullopt);
            } else if (!enterFolder(index)) {
                reportFailure("enter", m_items[index].name);
                return;
            }
        }
        while (!m_entered.empty()) {
            leaveFolder();
        }
    }

private:
    struct EnteredFolder {
        std::size_t item;
        /// The time and the permissions of a folder that was there already.
        std::optional<struct stat> before;
    };

    /// A layout may come back to a folder further down; on disk its entries are made together.
    void sortDepthFirst()
    {
        std::vector<std::vector<std::size_t>> entries(m_items.size());
        std::vector<std::size_t> pending;
        for (std::size_t index = m_items.size(); index-- > 0;) {
            auto& siblings = m_items[index].parent == LayoutItem::kTop ? pending : entries[m_items[index].parent];
            siblings.push_back(index);
        }
        while (!pending.empty()) {
            const auto index = pending.back();
            pending.pop_back();
            m_order.push_back(index);
            pending.insert(pending.end(), entries[index].begin(), entries[index].end());
        }
    }

    [[nodiscard]] int here() const { return m_current.isOpen() ? m_current.get() : m_root.get(); }

    bool makeItem(const LayoutItem& item)
    {
        const auto* name = item.name.c_str();
        switch (item.kind) {
        case LayoutKind::folder:
            m_isNewFolder = mkdirat(here(), name, S_IRWXU) == 0;
            return m_isNewFolder || errno == EEXIST;
        case LayoutKind::file:
            return makeFile(item);
        case LayoutKind::symbolicLink:
            return symlinkat(item.target.c_str(), here(), name) == 0;
        case LayoutKind::hardLink:
            return linkat(m_root.get(), item.target.c_str(), here(), name, 0) == 0;
        case LayoutKind::fifo:
            return mkfifoat(here(), name, S_IRUSR | S_IWUSR) == 0;
        case LayoutKind::socket:
            return mknodat(here(), name, S_IFSOCK | S_IRUSR | S_IWUSR, 0) == 0;
        }
        return false;
    }

    bool makeFile(const LayoutItem& item)
    {
        const int file =
            openat(here(), item.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
        if (file < 0) {
            return false;
        }
        bool isDone = item.isSparse ? ftruncate(file, item.size) == 0 : true;
        const std::string block(64 * 1024, 'k');
        std::string_view text = item.text ? std::string_view(*item.text) : std::string_view();
        auto left = item.isSparse ? 0 : item.text ? static_cast<std::int64_t>(text.size()) : item.size;
        while (isDone && left > 0) {
            const auto piece = item.text ? text : std::string_view(block).substr(0, static_cast<std::size_t>(left));
            const auto written = write(file, piece.data(), piece.size());
            isDone = written > 0;
            left -= std::max<ssize_t>(written, 0);
            text.remove_prefix(item.text ? static_cast<std::size_t>(std::max<ssize_t>(written, 0)) : 0);
        }
        const int error = errno;
        ::close(file);
        errno = error;
        return isDone;
    }

    bool enterFolder(std::size_t index)
    {
        const auto& name = m_items[index].name;
        struct stat before{};
        if (!m_isNewFolder) {
            fstatat(here(), name.c_str(), &before, AT_SYMLINK_NOFOLLOW);
            fchmodat(here(), name.c_str(), S_IRWXU, 0);
        }
        auto folder = Platform::openFolderIn(here(), name.c_str());
        if (!folder) {
            errno = folder.error();
            return false;
        }
        m_entered.push_back({.item = index, .before = m_isNewFolder ? std::nullopt : std::optional(before)});
        m_current = std::move(*folder);
        return true;
    }

    void leaveFolder()
    {
        const auto folder = m_entered.back();
        m_entered.pop_back();
        auto above = Platform::openParentFolder(here());
        m_current = m_entered.empty() || !above ? FileDescriptor() : std::move(*above);
        finish(here(), m_items[folder.item], folder.before);
    }

    void finish(int folder, const LayoutItem& item, const std::optional<struct stat>& before)
    {
        const auto mode = item.mode ? item.mode : before ? std::optional(before->st_mode & 07777U) : std::nullopt;
        if (mode && fchmodat(folder, item.name.c_str(), *mode, 0) != 0) {
            reportFailure("set the permissions of", item.name);
        }
        const auto isKept = before && !item.age;
        const auto age = item.age.value_or(TemporaryTree::kDefaultAge);
        const auto time = isKept ? before->st_mtim : timeOf(m_now.addingSeconds(-age));
        // A hard link is a name more of an item that has its age.
        const auto isSecondName = item.kind == LayoutKind::hardLink && !item.age;
        if (!isSecondName && !setModificationTime(folder, item.name, time)) {
            reportFailure("set the age of", item.name);
        }
    }

    FileDescriptor m_root;
    std::vector<LayoutItem> m_items;
    std::vector<std::size_t> m_order;
    Platform::Date m_now;
    std::vector<EnteredFolder> m_entered;
    FileDescriptor m_current;
    bool m_isNewFolder = false;
};

std::string resolvedTemporaryFolder()
{
    const auto* variable = std::getenv("TMPDIR");
    const std::string folder = variable != nullptr && *variable == '/' ? variable : "/tmp";
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(folder.c_str(), nullptr), std::free);
    return resolved ? resolved.get() : folder;
}

} // namespace

TemporaryTree::TemporaryTree(std::string_view layout, Platform::Date now)
    : m_now(now)
{
    auto path = resolvedTemporaryFolder() + "/karvello-test-XXXXXX";
    if (mkdtemp(path.data()) == nullptr) {
        reportFailure("make its folder", path);
        return;
    }
    m_root = Platform::FileURL::folder(path);
    add(layout);
    setAge("", kDefaultAge);
}

TemporaryTree::~TemporaryTree()
{
    if (!m_root.isRoot()) {
        remove("");
    }
}

void TemporaryTree::add(std::string_view layout)
{
    auto items = parseLayout(layout);
    if (!items) {
        ADD_FAILURE() << items.error();
        return;
    }
    auto folder = Platform::openFolder(m_root.path().c_str());
    if (!folder) {
        errno = folder.error();
        reportFailure("open", m_root.path());
        return;
    }
    TreeMaker(std::move(*folder), std::move(*items), m_now).make();
}

void TemporaryTree::remove(std::string_view relativePath)
{
    const auto item = url(relativePath);
    const auto folder = Platform::openFolder(item.deletingLastPathComponent().path().c_str());
    const int error = folder ? removeTree(folder->get(), std::string(item.lastPathComponent())) : folder.error();
    if (error != 0) {
        errno = error;
        reportFailure("remove", item.path());
    }
}

void TemporaryTree::setAge(std::string_view relativePath, double age)
{
    const auto item = path(relativePath);
    if (!setModificationTime(AT_FDCWD, item, timeOf(m_now.addingSeconds(-age)))) {
        reportFailure("set the age of", item);
    }
}

Platform::FileURL TemporaryTree::url(std::string_view relativePath) const
{
    const bool isFolder = relativePath.empty() || relativePath.ends_with('/');
    return m_root.appending(
        relativePath, isFolder ? Platform::DirectoryHint::isFolder : Platform::DirectoryHint::isFile);
}

} // namespace TestSupport
