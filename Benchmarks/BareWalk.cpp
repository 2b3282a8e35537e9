// The least that a walk over a tree can cost: getdents64, openat and one statx an entry, shared by a number of threads.
// It keeps no names, applies no rules and prints three numbers. Other walks are measured against it.
//
//     karvello-bare-walk FOLDER [THREADS]

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Entry {
    std::uint64_t inode;
    std::int64_t offset;
    std::uint16_t length;
    std::uint8_t type;
    char name[1];
};

struct Totals {
    std::uint64_t entries = 0;
    std::uint64_t blocks = 0;
    std::uint64_t failures = 0;
};

/// Folders that are open and not yet listed, for a thread that has nothing left to do.
class SharedFolders {
public:
    explicit SharedFolders(unsigned threads)
        : m_threads(threads)
    {
    }

    [[nodiscard]] bool isWanted() const { return m_waiting.load(std::memory_order_relaxed) > 0; }

    void give(int folder)
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_folders.push_back(folder);
        }
        m_changed.notify_one();
    }

    /// Below 0 when all threads wait, which is the end.
    int take()
    {
        std::unique_lock lock(m_mutex);
        if (++m_waiting == m_threads && m_folders.empty()) {
            m_isDone = true;
            m_changed.notify_all();
        }
        m_changed.wait(lock, [&] { return m_isDone || !m_folders.empty(); });
        if (m_folders.empty()) {
            return -1;
        }
        --m_waiting;
        const int folder = m_folders.back();
        m_folders.pop_back();
        return folder;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<int> m_folders;
    std::atomic<unsigned> m_waiting = 0;
    unsigned m_threads;
    bool m_isDone = false;
};

int openFolder(int base, const char* name)
{
    return openat(base, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | O_NOATIME);
}

/// Lists one folder and goes into its subfolders at once, so the number of open folders is the depth of the tree.
void walk(int folder, SharedFolders& shared, Totals& totals)
{
    alignas(Entry) char buffer[16 * 1024];
    while (true) {
        const auto size = syscall(SYS_getdents64, folder, buffer, sizeof buffer);
        if (size <= 0) {
            totals.failures += size < 0 ? 1 : 0;
            break;
        }
        for (long offset = 0; offset < size;) {
            const auto* entry = reinterpret_cast<const Entry*>(buffer + offset);
            offset += entry->length;
            if (std::strcmp(entry->name, ".") == 0 || std::strcmp(entry->name, "..") == 0) {
                continue;
            }
            struct statx status;
            if (statx(folder, entry->name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC,
                    STATX_TYPE | STATX_SIZE | STATX_BLOCKS | STATX_MTIME, &status)
                != 0) {
                ++totals.failures;
                continue;
            }
            ++totals.entries;
            totals.blocks += status.stx_blocks;
            if (!S_ISDIR(status.stx_mode)) {
                continue;
            }
            const int subfolder = openFolder(folder, entry->name);
            if (subfolder < 0) {
                ++totals.failures;
            } else if (shared.isWanted()) {
                shared.give(subfolder);
            } else {
                walk(subfolder, shared, totals);
            }
        }
    }
    close(folder);
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 2) {
        std::fputs("usage: karvello-bare-walk FOLDER [THREADS]\n", stderr);
        return 2;
    }
    const auto threads = count > 2 ? static_cast<unsigned>(std::strtoul(arguments[2], nullptr, 10)) : 2U;
    const int root = openFolder(AT_FDCWD, arguments[1]);
    if (root < 0 || threads == 0) {
        std::perror(arguments[1]);
        return 1;
    }
    SharedFolders shared(threads);
    shared.give(root);
    std::vector<Totals> totals(threads);
    {
        std::vector<std::jthread> workers;
        for (unsigned index = 0; index < threads; ++index) {
            workers.emplace_back([&shared, &mine = totals[index]] {
                Totals counted;
                for (int folder = shared.take(); folder >= 0; folder = shared.take()) {
                    walk(folder, shared, counted);
                }
                mine = counted;
            });
        }
    }
    Totals sum;
    for (const auto& part : totals) {
        sum.entries += part.entries;
        sum.blocks += part.blocks;
        sum.failures += part.failures;
    }
    std::printf("%ju entries, %ju bytes, %ju failures\n", static_cast<std::uintmax_t>(sum.entries),
        static_cast<std::uintmax_t>(sum.blocks * 512), static_cast<std::uintmax_t>(sum.failures));
    return sum.failures == 0 ? 0 : 1;
}
