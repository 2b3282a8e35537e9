#include "Tests/CleanerCore/Scan/ScanFixture.h"
#include "Tests/Support/FaultyFileManager.h"

#include <cerrno>
#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace ScanTests;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using TestSupport::Fault;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;

class StorageScannerFailures : public StorageScannerTest {
protected:
    ScanReport scanWith(Fault fault)
    {
        FaultyFileManager faulty(m_posix);
        faulty.fail(std::move(fault));
        m_fileManager = &faulty;
        auto report = scan();
        EXPECT_EQ(faulty.failureCount(), 1U);
        m_fileManager = &m_posix;
        return report;
    }

    [[nodiscard]] std::string rootReason(std::string_view path)
    {
        const auto report = scan({location(m_tree.url(path))});
        EXPECT_THAT(report.candidates, IsEmpty());
        EXPECT_THAT(report.skippedItems, SizeIs(1));
        return report.skippedItems.empty() ? std::string() : report.skippedItems[0].reason;
    }
};

TEST_F(StorageScannerFailures, SaysThatARootIsMissingOrNoFolder)
{
    m_tree.add("home/file size=10");
    EXPECT_EQ(rootReason("home/missing/"), "Folder does not exist");
    EXPECT_EQ(rootReason("home/file/"), "Folder does not exist");
}

TEST_F(StorageScannerFailures, RefusesARootThatIsALinkOrHasOneInItsPath)
{
    m_tree.add(R"(
        home/real/Caches/data size=10
        home/link -> real
    )");
    EXPECT_EQ(rootReason("home/link/"), "Path is outside the active scan scope: " + m_tree.path("home/real"));
    EXPECT_EQ(
        rootReason("home/link/Caches/"), "Path is outside the active scan scope: " + m_tree.path("home/real/Caches"));
}

TEST_F(StorageScannerFailures, RefusesTheHomeAndWhatLiesAboveAProtectedPath)
{
    EXPECT_EQ(rootReason("home/"), "Path is outside the active scan scope: " + m_tree.path("home"));
    const auto report = scan({location(Platform::FileURL::folder("/var"))});
    ASSERT_THAT(report.skippedItems, SizeIs(1));
    EXPECT_EQ(report.skippedItems[0].reason, "Path is outside the active scan scope: /var");
}

TEST_F(StorageScannerFailures, SaysThatARootVanishedBeforeItWasListed)
{
    const auto report = scanWith({.call = FileManagerCall::makeEnumerator, .systemError = ENOENT});
    ASSERT_THAT(report.skippedItems, SizeIs(1));
    EXPECT_EQ(report.skippedItems[0].url, m_tree.url("home/Caches/"));
    EXPECT_EQ(report.skippedItems[0].reason, "Could not enumerate folder");
}

TEST_F(StorageScannerFailures, SaysThatARootMayNotBeRead)
{
    m_tree.add("home/Caches/data size=10");
    const auto report = scanWith({.call = FileManagerCall::listFolder, .systemError = EACCES});
    ASSERT_THAT(report.skippedItems, SizeIs(1));
    EXPECT_EQ(report.skippedItems[0].reason,
        "The file “Caches” couldn’t be opened because you don’t have permission to view it.");
}

TEST_F(StorageScannerFailures, SaysThatAChildVanishedAndGoesOn)
{
    m_tree.add(R"(
        home/Caches/a size=10
        home/Caches/b size=10
    )");
    const auto report = scanWith(
        {.call = FileManagerCall::resourceValues, .systemError = ENOENT, .path = m_tree.path("home/Caches/a")});
    EXPECT_THAT(candidateNames(report), ElementsAre("b"));
    EXPECT_EQ(reason(report, "a"), "The file “a” couldn’t be opened because there is no such file.");
}

TEST_F(StorageScannerFailures, KeepsTheOrderOfWhatAChildsWalkMet)
{
    m_tree.add(R"(
        home/Caches/folder/denied/x size=10
        home/Caches/folder/gone size=10
        home/Caches/folder/data size=4096
    )");
    FaultyFileManager faulty(m_posix);
    faulty.fail(
        {.call = FileManagerCall::listFolder, .systemError = EACCES, .path = m_tree.path("home/Caches/folder/denied")});
    faulty.fail({.call = FileManagerCall::entryResourceValues,
        .systemError = ENOENT,
        .path = m_tree.path("home/Caches/folder/gone")});
    m_fileManager = &faulty;
    const auto report = scan();
    EXPECT_THAT(candidateNames(report), ElementsAre("folder"));
    ASSERT_THAT(report.skippedItems, SizeIs(2));
    EXPECT_EQ(report.skippedItems[0].url.lastPathComponent(), "gone");
    EXPECT_EQ(report.skippedItems[1].url.lastPathComponent(), "denied");
}

TEST_F(StorageScannerFailures, GoesOnAfterAReadErrorInTheMiddleOfAListing)
{
    m_tree.add(R"(
        home/Caches/folder/
            part count=10 size=1
        home/Caches/zz size=10
    )");
    const auto report = scanWith(
        {.call = FileManagerCall::nextEntry, .systemError = EIO, .nth = 5, .path = m_tree.path("home/Caches/folder")});
    EXPECT_THAT(candidateNames(report), testing::UnorderedElementsAre("folder", "zz"));
    EXPECT_EQ(
        reason(report, "folder"), "The file “folder” couldn’t be opened because the volume reported a read error.");
}

TEST_F(StorageScannerFailures, SaysThatAFolderCouldNotBeWalkedAndThatItIsEmptyThen)
{
    m_tree.add("home/Caches/folder/data size=10");
    const auto report = scanWith(
        {.call = FileManagerCall::makeEnumerator, .systemError = EMFILE, .path = m_tree.path("home/Caches/folder")});
    ASSERT_THAT(report.skippedItems, SizeIs(2));
    EXPECT_EQ(report.skippedItems[0].reason, "Could not enumerate folder");
    EXPECT_EQ(report.skippedItems[1].reason, "Empty item");
}

TEST_F(StorageScannerFailures, KeepsACandidateWhoseIdentityCannotBeRead)
{
    m_tree.add("home/Caches/data size=10");
    FaultyFileManager faulty(m_posix);
    faulty.fail({.call = FileManagerCall::identityValues, .systemError = EIO});
    faulty.fail({.call = FileManagerCall::attributes, .systemError = EIO});
    m_fileManager = &faulty;
    const auto report = scan();
    ASSERT_THAT(report.candidates, SizeIs(1));
    EXPECT_FALSE(report.candidates[0].resourceIdentity.has_value());
}

/// Every call of the seam fails once, at each of its first places: the scan must come to its end, and every child must
/// be accounted for.
TEST_F(StorageScannerFailures, SurvivesAFaultAnywhere)
{
    m_tree.add(R"(
        home/Caches/one/sub/data size=10
        home/Caches/two size=10
        home/Caches/three/data size=10
    )");
    for (const auto call : {FileManagerCall::resourceValues, FileManagerCall::identityValues,
             FileManagerCall::attributes, FileManagerCall::makeEnumerator, FileManagerCall::listFolder,
             FileManagerCall::nextEntry, FileManagerCall::entryResourceValues, FileManagerCall::existence,
             FileManagerCall::volumeSupportsCaseSensitiveNames, FileManagerCall::resolvingSymbolicLinks}) {
        for (const auto duration : {FaultDuration::once, FaultDuration::fromThenOn}) {
            for (std::size_t nth = 1; nth <= 12; ++nth) {
                FaultyFileManager faulty(m_posix);
                faulty.fail({.call = call, .systemError = EIO, .nth = nth, .duration = duration});
                m_fileManager = &faulty;
                const auto report = scan();
                const bool struck = faulty.failureCount() > 0;
                EXPECT_TRUE(!struck || !report.skippedItems.empty() || call == FileManagerCall::identityValues
                    || call == FileManagerCall::attributes || call == FileManagerCall::volumeSupportsCaseSensitiveNames
                    || call == FileManagerCall::resolvingSymbolicLinks)
                    << static_cast<int>(call) << " at call " << nth;
                EXPECT_TRUE(struck || report.candidates.size() == 3) << static_cast<int>(call) << " at call " << nth;
            }
        }
    }
}

TEST_F(StorageScannerFailures, GoesOnWithTooFewDescriptorsAndSaysSo)
{
    m_tree.add("home/Caches/folder/sub/data size=10");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const auto handler = [&](const StorageScanProgress& progress) {
        if (progress.completedItemsInCurrentLocation == 1) {
            const rlimit none{.rlim_cur = 0, .rlim_max = before.rlim_max};
            EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
        }
    };
    const auto report = scan(LocationRules{}, handler);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_THAT(report.candidates, IsEmpty());
    EXPECT_EQ(reason(report, "folder"), "Could not enumerate folder");
}

enum class MountKind { bind, temporaryFileSystem };

/// Runs `check` in a process of its own that may mount what only it sees, and gives its exit code.
int inMountNamespace(
    MountKind kind, const std::string& source, const std::string& target, const std::function<bool()>& check)
{
    constexpr int kCannotMount = 77;
    const pid_t child = fork();
    if (child == 0) {
        // A process with two threads, as ThreadSanitizer makes of each, may make no user namespace; root needs none.
        const bool isAlone = unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0
            || (unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0);
        const bool mounted = isAlone
            && (kind == MountKind::bind ? mount(source.c_str(), target.c_str(), nullptr, MS_BIND, nullptr)
                                        : mount("tmpfs", target.c_str(), "tmpfs", 0, nullptr))
                == 0;
        _exit(mounted ? (check() ? 0 : 1) : kCannotMount);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(StorageScannerFailures, LeavesAFolderWithABindMountInsideAlone)
{
    m_tree.add(R"(
        elsewhere/precious size=10
        home/Caches/folder/sub/mounted/
        home/Caches/folder/data size=10
        home/Caches/other size=10
    )");
    const int code =
        inMountNamespace(MountKind::bind, m_tree.path("elsewhere"), m_tree.path("home/Caches/folder/sub/mounted"), [&] {
            const auto report = scan();
            return reason(report, "folder") == SkipReason::noTouchDescendant
                && candidateNames(report) == std::vector<std::string>{"other"};
        });
    EXPECT_EQ(code, 0) << "77: this system lets no user make a mount namespace";
}

TEST_F(StorageScannerFailures, LeavesATemporaryFileSystemAmongTheChildrenAlone)
{
    m_tree.add(R"(
        home/Caches/mounted/
        home/Caches/other size=10
    )");
    const int code = inMountNamespace(MountKind::temporaryFileSystem, "", m_tree.path("home/Caches/mounted"), [&] {
        const auto report = scan();
        return reason(report, "mounted") == SkipReason::noTouchPath
            && candidateNames(report) == std::vector<std::string>{"other"};
    });
    EXPECT_EQ(code, 0) << "77: this system lets no user make a mount namespace";
}

TEST_F(StorageScannerFailures, LeavesAFileThatIsMountedOverAlone)
{
    m_tree.add(R"(
        elsewhere size=10
        home/Caches/folder/mounted size=10
    )");
    const int code =
        inMountNamespace(MountKind::bind, m_tree.path("elsewhere"), m_tree.path("home/Caches/folder/mounted"),
            [&] { return reason(scan(), "folder") == SkipReason::noTouchDescendant; });
    EXPECT_EQ(code, 0) << "77: this system lets no user make a mount namespace";
}

} // namespace
