#include "Platform/Files/AtomicFile.h"

#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/WholeFile.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <random>
#include <string>
#include <sys/stat.h>

namespace Platform {

namespace {

constexpr mode_t kNewFileMode = 0666; // less what the process's mask takes away
constexpr int kTemporaryNameAttempts = 32;

/// A file that goes away again unless it takes its final name.
class TemporaryFile {
public:
    /// Made in the open folder, with the permissions of the file it is to replace.
    static std::expected<TemporaryFile, int> make(int folder, const char* replacedName)
    {
        std::random_device random;
        for (int attempt = 0; attempt < kTemporaryNameAttempts; ++attempt) {
            auto name = fmt::format(".karvello-{:08x}{:08x}.tmp", random(), random());
            FileDescriptor descriptor(
                openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kNewFileMode));
            if (descriptor.isOpen()) {
                struct stat replaced{};
                if (fstatat(folder, replacedName, &replaced, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(replaced.st_mode)) {
                    std::ignore = fchmod(descriptor.get(), replaced.st_mode & 0777U);
                }
                return TemporaryFile(folder, std::move(name), std::move(descriptor));
            }
            if (errno != EEXIST) {
                break;
            }
        }
        return std::unexpected(errno);
    }

    TemporaryFile(TemporaryFile&&) = default;
    TemporaryFile& operator=(TemporaryFile&&) = delete;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (m_descriptor.isOpen()) {
            unlinkat(m_folder, m_name.c_str(), 0);
        }
    }

    [[nodiscard]] int write(std::string_view bytes) const { return writeAll(m_descriptor.get(), bytes); }

    [[nodiscard]] int sync() const { return fsync(m_descriptor.get()) == 0 ? 0 : errno; }

    [[nodiscard]] int take(const char* finalName)
    {
        if (renameat(m_folder, m_name.c_str(), m_folder, finalName) != 0) {
            return errno;
        }
        m_descriptor.reset();
        return 0;
    }

private:
    TemporaryFile(int folder, std::string name, FileDescriptor descriptor)
        : m_folder(folder)
        , m_name(std::move(name))
        , m_descriptor(std::move(descriptor))
    {
    }

    int m_folder;
    std::string m_name;
    FileDescriptor m_descriptor;
};

} // namespace

std::expected<void, FileError> replaceFile(const FileURL& url, std::string_view bytes, WriteDurability durability)
{
    const auto failure = [&](int systemError) {
        return std::unexpected(FileError::fromSystemError(systemError, FileOperation::write, url.path()));
    };
    const std::string name(url.lastPathComponent());
    const FileDescriptor folder(
        open(url.deletingLastPathComponent().path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen()) {
        return failure(errno);
    }
    auto file = TemporaryFile::make(folder.get(), name.c_str());
    if (!file) {
        return failure(file.error());
    }
    const bool isSynced = durability == WriteDurability::onDisk;
    int error = file->write(bytes);
    if (error == 0 && isSynced) {
        error = file->sync();
    }
    if (error == 0) {
        error = file->take(name.c_str());
    }
    if (error == 0 && isSynced && fsync(folder.get()) != 0 && errno != EINVAL) {
        error = errno;
    }
    if (error != 0) {
        return failure(error);
    }
    return {};
}

} // namespace Platform
