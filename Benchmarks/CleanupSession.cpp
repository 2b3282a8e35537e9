// How long the cleanup session holds the main thread while it scans a large folder, takes over what it found and is told
// to stop: karvello-cleanup-session FOLDER. The children of the folder are the candidates.

#include "KarvelloUI/Sessions/CleanerViewModel.h"
#include "KarvelloUI/Sessions/JobThreads.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxBookmarks.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Platform/Services/FileUserDefaults.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace KarvelloUI;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using Platform::FileURL;

/// Tells whether work is left.
class CountingThreads final : public JobExecutor {
public:
    void execute(Work work) override
    {
        ++m_left;
        m_threads.execute([this, work = std::move(work)]() mutable {
            work();
            work = {};
            --m_left;
        });
    }
    [[nodiscard]] bool isIdle() const { return m_left == 0; }

private:
    std::atomic<int> m_left = 0;
    JobThreads m_threads;
};

struct Subject {
    explicit Subject(const std::string& folder)
        : location(CleanerCore::ScanLocation::Fields{
              .rootURL = FileURL::folder(folder),
              .category = CleanerCore::CleanupCategory::userCaches,
              .displayName = "folder",
              .depth = CleanerCore::ScanDepth::immediateChildren,
              .isSelectedByDefault = true,
              .safety = CleanerCore::CleanupSafety::safe,
              .minimumModificationAge = 0,
              .includesHiddenFiles = true,
              .includesPackageDescendants = true,
              .appCacheContext = std::nullopt,
          })
    {
    }

    /// One turn of the event loop: the events that are there are handled, and how long that held the main thread.
    static Milliseconds turn()
    {
        std::this_thread::sleep_for(std::chrono::microseconds(200));
        const auto begin = Clock::now();
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        return Clock::now() - begin;
    }

    void scan()
    {
        const auto begin = Clock::now();
        session.scan({location});
        const auto returned = Clock::now();
        // The last turn is the one that takes the report over.
        Milliseconds whileScanning{};
        Milliseconds takingOver{};
        while (session.isBusy()) {
            takingOver = turn();
            if (session.isBusy()) {
                whileScanning = std::max(whileScanning, takingOver);
            }
        }
        fmt::print(
            "scan of {} candidates in {:.2f} s: the call took {:.2f} ms, the longest turn while it ran {:.2f} ms, "
            "taking it over {:.2f} ms\n",
            session.report().candidates.size(), std::chrono::duration<double>(Clock::now() - begin).count(),
            Milliseconds(returned - begin).count(), whileScanning.count(), takingOver.count());
    }

    void cancel(std::chrono::milliseconds after)
    {
        session.scan({location});
        const auto begin = Clock::now();
        while (Clock::now() - begin < after) {
            turn();
        }
        const auto asked = Clock::now();
        session.cancelCurrentOperation();
        const auto idle = Clock::now();
        while (!threads.isIdle()) {
            turn();
        }
        fmt::print("cancelled after {} ms: the session was idle {:.2f} ms later, its threads {:.1f} ms later\n",
            after.count(), Milliseconds(idle - asked).count(), Milliseconds(Clock::now() - asked).count());
    }

    CleanerCore::ScanLocation location;
    std::string own = std::filesystem::temp_directory_path() / "karvello-cleanup-session-nothing-is-written-here";
    Platform::PosixFileManager fileManager;
    Platform::LinuxTrash trash{fileManager, FileURL::folder(own + "/data")};
    Platform::LinuxBookmarks bookmarks;
    Platform::Environment environment{{{"HOME", own}}};
    Platform::FileUserDefaults defaults{fileManager, FileURL(own + "/preferences.json")};
    CleanupIgnoreStore ignoreStore{defaults, [] { return AppLanguage::english; }};
    CountingThreads threads;
    CleanerViewModel session{{.fileManager = fileManager,
                                 .trash = trash,
                                 .bookmarks = bookmarks,
                                 .environment = environment,
                                 .executor = threads},
        CleanerCore::CleanupAuditStore(fileManager, FileURL(own + "/log.json")), ignoreStore,
        [] { return std::vector<CleanerCore::AppCacheRunningApplicationIdentity>(); }};
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        fmt::print(stderr, "usage: karvello-cleanup-session FOLDER\n");
        return 2;
    }
    Subject subject(std::filesystem::absolute(argv[1]).string());
    subject.scan();
    subject.scan();
    for (const auto after : {std::chrono::milliseconds(50), std::chrono::milliseconds(300)}) {
        subject.cancel(after);
    }
    return 0;
}
