#include "Rigs/RigFolder.h"

#include "CleanerCore/Cleaning/MoveAnchors.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Rigs/NaiveTrash.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fmt/format.h>
#include <sys/stat.h>

namespace Rigs {

RigFolder::RigFolder(const std::string& below)
    : m_path(below + "/karvello-rig-XXXXXX")
{
    if (mkdtemp(m_path.data()) == nullptr) {
        fail("cannot make a folder in " + below);
    }
    makeFolder("data");
    makeFolder("Caches");
}

RigFolder::~RigFolder()
{
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
}

void RigFolder::makeFolder(std::string_view relativePath) const
{
    if (mkdir(path(relativePath).c_str(), 0700) != 0) {
        fail("cannot make " + path(relativePath));
    }
}

void RigFolder::makeFile(std::string_view relativePath, std::string_view text) const
{
    const Platform::FileDescriptor file(
        ::open(path(relativePath).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.isOpen() || ::write(file.get(), text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        fail("cannot write " + path(relativePath));
    }
}

Platform::FileDescriptor RigFolder::open(std::string_view relativePath) const
{
    Platform::FileDescriptor folder(::open(path(relativePath).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen()) {
        fail("cannot open " + path(relativePath));
    }
    return folder;
}

Platform::FolderAnchor RigFolder::anchor(std::string_view relativePath) const
{
    const auto folder = url(relativePath);
    const auto attributes = m_fileManager.attributes(folder);
    if (!attributes) {
        fail("cannot look at " + folder.path());
    }
    return {.url = folder, .systemNumber = *attributes->systemNumber, .systemFileNumber = *attributes->systemFileNumber};
}

Platform::ItemTest RigFolder::confirming(std::string_view relativePath) const
{
    const auto identity = CleanerCore::FileResourceIdentity::captureIfAvailable(url(relativePath), m_fileManager);
    if (!identity) {
        fail("cannot look at " + path(relativePath));
    }
    return CleanerCore::isItem(*identity);
}

std::unique_ptr<Platform::Trash> RigFolder::trash(Mover mover) const
{
    if (mover == Mover::naive) {
        return std::make_unique<NaiveTrash>(m_fileManager, url("data"));
    }
    return std::make_unique<Platform::LinuxTrash>(m_fileManager, url("data"));
}

ino_t fileNumber(int folder, const char* name)
{
    struct stat found {};
    return fstatat(folder, name, &found, AT_SYMLINK_NOFOLLOW) == 0 ? found.st_ino : 0;
}

void fail(const std::string& message)
{
    fmt::print(stderr, "{}: {}\n", message, std::strerror(errno));
    std::exit(2);
}

std::optional<std::string> option(int count, char** words, std::string_view name)
{
    for (int index = 1; index + 1 < count; ++index) {
        if (words[index] == "--" + std::string(name)) {
            return words[index + 1];
        }
    }
    return std::nullopt;
}

} // namespace Rigs
