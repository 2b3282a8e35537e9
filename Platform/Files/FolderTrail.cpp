#include "Platform/Files/FolderTrail.h"

#include "Platform/Files/OpenFolder.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace Platform {

namespace {

// Enough for ordinary trees never to climb back, and few enough for many walks at once under the usual limit of 1024.
constexpr std::size_t kMaximumOpenFolders = 16;

} // namespace

FolderTrail::FolderTrail(std::shared_ptr<const FolderHandle> root)
    : m_root(std::move(root))
    , m_path(m_root->url().path())
{
    m_folders.emplace_back().pathLength = m_path.size();
}

int FolderTrail::descriptorOf(const Folder& folder) const
{
    return &folder == m_folders.data() ? m_root->descriptor() : folder.descriptor.get();
}

std::shared_ptr<const FolderHandle> FolderTrail::sharedFolder() const
{
    if (m_folders.size() == 1) {
        return m_root;
    }
    if (!m_shared) {
        m_shared = std::make_shared<const FolderHandle>(
            FileDescriptor(fcntl(descriptor(), F_DUPFD_CLOEXEC, 0)), FileURL::folder(m_path));
    }
    return m_shared;
}

void FolderTrail::remember(std::string_view name, std::uint64_t context)
{
    auto& remembered = m_folders.back().remembered;
    const auto offset = remembered.size();
    remembered.resize(offset + sizeof context + name.size() + 1);
    std::memcpy(remembered.data() + offset, &context, sizeof context);
    std::memcpy(remembered.data() + offset + sizeof context, name.data(), name.size());
}

std::expected<bool, FolderTrail::Failure> FolderTrail::enterNext()
{
    m_shared.reset();
    const auto left = leaveFinishedFolders();
    if (!left || !*left) {
        return left;
    }
    auto& parent = m_folders.back();
    Folder folder;
    std::memcpy(&folder.context, parent.remembered.data() + parent.nextRemembered, sizeof folder.context);
    const char* const name = parent.remembered.data() + parent.nextRemembered + sizeof folder.context;
    const std::string_view nameView(name);
    parent.nextRemembered += sizeof folder.context + nameView.size() + 1;

    auto opened = openFolderIn(descriptorOf(parent), name);
    if (!opened && (opened.error() == EMFILE || opened.error() == ENFILE)) {
        giveUpDescriptors(1);
        opened = openFolderIn(descriptorOf(parent), name);
    }
    m_path.resize(parent.pathLength);
    if (!opened) {
        return std::unexpected(
            Failure{.url = FileURL::entry(m_path, nameView, DirectoryHint::isFolder), .systemError = opened.error()});
    }
    if (m_path.size() > 1) {
        m_path += '/';
    }
    m_path += nameView;
    folder.pathLength = m_path.size();
    if (!parent.hasRemembered()) {
        parent.remembered = {};
        parent.nextRemembered = 0;
        takeDescriptor(m_folders.size() - 1).reset();
    }
    m_folders.push_back(std::move(folder));
    keepOpen(m_folders.size() - 1, std::move(*opened));
    giveUpDescriptors(kMaximumOpenFolders);
    return true;
}

/// Drops the folders that have nothing left to enter, from the current one upwards.
std::expected<bool, FolderTrail::Failure> FolderTrail::leaveFinishedFolders()
{
    FileDescriptor deepest;
    std::size_t deepestIndex = 0;
    while (!m_folders.back().hasRemembered()) {
        if (m_folders.size() == 1) {
            return false;
        }
        if (!deepest.isOpen()) {
            deepestIndex = m_folders.size() - 1;
            deepest = takeDescriptor(deepestIndex);
        }
        takeDescriptor(m_folders.size() - 1).reset();
        m_folders.pop_back();
    }
    auto& folder = m_folders.back();
    if (descriptorOf(folder) < 0) {
        auto found = climbTo(m_folders.size() - 1, deepestIndex, std::move(deepest));
        if (!found) {
            m_path.resize(folder.pathLength);
            folder.remembered.clear();
            folder.nextRemembered = 0;
            return std::unexpected(Failure{.url = FileURL::folder(m_path), .systemError = found.error()});
        }
        keepOpen(m_folders.size() - 1, std::move(*found));
        folder.closedStatus.reset();
    }
    return true;
}

std::expected<FileDescriptor, int> FolderTrail::climbTo(
    std::size_t index, std::size_t fromIndex, FileDescriptor from) const
{
    for (; fromIndex > index; --fromIndex) {
        auto parent = openParentFolder(from.get());
        if (!parent) {
            return parent;
        }
        from = std::move(*parent);
    }
    const auto status = readItemStatus(from.get(), "", StatusDetail::walk);
    if (!status) {
        return std::unexpected(status.error());
    }
    const auto& expected = m_folders[index].closedStatus;
    if (!expected || !status->isSamePlace(*expected)) {
        return std::unexpected(ENOENT);
    }
    return from;
}

/// Closes folders far from the current one until at most `keep`, one or more, are open. The current one is the last of
/// those that are open, and stays.
void FolderTrail::giveUpDescriptors(std::size_t keep)
{
    while (m_openFolders.size() > keep) {
        auto& folder = m_folders[m_openFolders.front()];
        if (const auto status = readItemStatus(folder.descriptor.get(), "", StatusDetail::walk)) {
            folder.closedStatus = *status;
        }
        folder.descriptor.reset();
        m_openFolders.erase(m_openFolders.begin());
    }
}

void FolderTrail::keepOpen(std::size_t index, FileDescriptor descriptor)
{
    m_folders[index].descriptor = std::move(descriptor);
    m_openFolders.push_back(index);
}

FileDescriptor FolderTrail::takeDescriptor(std::size_t index)
{
    std::erase(m_openFolders, index);
    return std::move(m_folders[index].descriptor);
}

} // namespace Platform
