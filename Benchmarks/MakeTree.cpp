// Makes a tree of small, old files to measure scans on; the same arguments make the same tree.
//
//     karvello-make-tree FOLDER FILES FOLDERS CHILDREN
//
// FOLDER must not exist. CHILDREN folders stand at its top, the other folders lie below them with at most
// `kSubfolders` in each, and the files are spread over all folders evenly. FOLDERS of 1 puts every file into FOLDER
// itself, and CHILDREN counts for nothing.

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t kSubfolders = 4;
constexpr std::size_t kLargestFile = 4096;
// 2020-01-01T00:00:00Z: older than every age that a rule asks for.
constexpr std::array<timespec, 2> kOldTimes{timespec{1'577'836'800, 0}, timespec{1'577'836'800, 0}};

[[noreturn]] void fail(const std::string& name)
{
    std::perror(name.c_str());
    std::exit(1);
}

/// The same sequence on every machine (an xorshift generator of 64 bits).
class Numbers {
public:
    std::size_t below(std::size_t limit)
    {
        m_state ^= m_state << 13U;
        m_state ^= m_state >> 7U;
        m_state ^= m_state << 17U;
        return m_state % limit;
    }

private:
    std::uint64_t m_state = 0x9E3779B97F4A7C15;
};

class TreeMaker {
public:
    TreeMaker(std::size_t files, std::size_t folders)
        : m_files(files)
        , m_folders(folders)
    {
    }

    /// Makes `name` in `base` with `folders` in it and below it, itself counted.
    void makeFolder(int base, const std::string& name, std::size_t folders, std::size_t subfolders)
    {
        if (mkdirat(base, name.c_str(), S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH) != 0) {
            fail(name);
        }
        const int folder = openat(base, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder < 0) {
            fail(name);
        }
        const auto holdsFiles = subfolders == kSubfolders || m_folders == 1;
        if (holdsFiles) {
            makeFiles(folder);
        }
        auto left = folders - 1;
        for (std::size_t index = 0; index < subfolders && left > 0; ++index) {
            const auto share = (left + subfolders - index - 1) / (subfolders - index);
            makeFolder(folder, "folder-" + std::to_string(index), share, kSubfolders);
            left -= share;
        }
        if (futimens(folder, kOldTimes.data()) != 0) {
            fail(name);
        }
        close(folder);
    }

private:
    void makeFiles(int folder)
    {
        ++m_madeFolders;
        // The number of files that should stand in all folders up to this one.
        const auto due = m_files * m_madeFolders / (m_folders == 1 ? 1 : m_folders - 1);
        for (; m_madeFiles < due && m_madeFiles < m_files; ++m_madeFiles) {
            makeFile(folder, "file-" + std::to_string(m_madeFiles) + ".dat");
        }
    }

    void makeFile(int folder, const std::string& name)
    {
        static const std::array<char, kLargestFile> content{};
        const int file = openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
        const auto size = m_numbers.below(8) == 0 ? m_numbers.below(kLargestFile) + 1 : m_numbers.below(64) + 1;
        if (file < 0 || write(file, content.data(), size) != static_cast<ssize_t>(size)
            || futimens(file, kOldTimes.data()) != 0) {
            fail(name);
        }
        close(file);
    }

    std::size_t m_files;
    std::size_t m_folders;
    std::size_t m_madeFiles = 0;
    std::size_t m_madeFolders = 0;
    Numbers m_numbers;
};

} // namespace

int main(int count, char** arguments)
{
    if (count != 5) {
        std::fputs("usage: karvello-make-tree FOLDER FILES FOLDERS CHILDREN\n", stderr);
        return 2;
    }
    const auto number = [&](int index) {
        return static_cast<std::size_t>(std::strtoull(arguments[index], nullptr, 10));
    };
    const auto folders = number(3) == 1 ? 1 : number(3) + 1;
    TreeMaker(number(2), folders).makeFolder(AT_FDCWD, arguments[1], folders, number(3) == 1 ? 0 : number(4));
    return 0;
}
