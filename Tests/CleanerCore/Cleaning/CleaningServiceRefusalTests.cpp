#include "Tests/CleanerCore/Cleaning/CleaningFixture.h"

#include "Tests/Support/AlteringFileManager.h"
#include "Tests/Support/FaultyFileManager.h"
#include "Tests/Support/ForwardingFileManager.h"
#include "Tests/Support/SteppingFileManager.h"

#include <cerrno>
#include <cmath>
#include <limits>

namespace CleaningTests {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using TestSupport::FaultDuration;
using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;
using TestSupport::SteppingFileManager;

TEST_F(CleaningServiceTest, RefusesACandidateOfWhichNothingCanBeTold)
{
    m_tree.add("home/Caches/a size=10");
    scan();
    FaultyFileManager faulty(m_posix);
    using enum FileManagerCall;
    for (const auto call : {identityValues, attributes}) {
        faulty.fail({.call = call, .systemError = EIO, .duration = FaultDuration::fromThenOn, .path = path("a")});
    }
    m_fileManager = &faulty;
    expectRefused(clean({CleanupCandidate({.url = item("a")})}), Kind::unreadableAttributes, item("a"));
    EXPECT_TRUE(m_fakeTrash->itemAnchors().empty());
}

TEST_F(CleaningServiceTest, RefusesAScannedCandidateOfWhichNothingCanBeToldAnyMore)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    FaultyFileManager faulty(m_posix);
    using enum FileManagerCall;
    for (const auto call : {identityValues, attributes}) {
        faulty.fail({.call = call, .systemError = EIO, .duration = FaultDuration::fromThenOn, .path = path("a")});
    }
    m_fileManager = &faulty;
    expectRefused(clean(candidates), Kind::unreadableAttributes, item("a"));
}

TEST_F(CleaningServiceTest, RefusesACandidateWhoseIdAndPathDoNotAgreeBeforeItLooksAtAnything)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    auto otherPath = candidates[0];
    otherPath.url = candidates[1].url;
    auto otherCategory = candidates[0];
    otherCategory.category = CleanupCategory::userLogs;
    const SteppingFileManager stepping(m_posix, [](std::size_t, FileManagerCall) {});
    m_fileManager = &stepping;
    expectRefused(clean({otherPath}), Kind::pathNotAllowed, candidates[1].url);
    const auto looksForNoCandidate = stepping.count();
    expectRefused(clean({otherCategory}), Kind::pathNotAllowed, candidates[0].url);
    EXPECT_EQ(stepping.count(), 2 * looksForNoCandidate);
    static_cast<void>(clean({}));
    EXPECT_EQ(stepping.count(), 3 * looksForNoCandidate);
    EXPECT_THAT(names(item("")), ElementsAre("a", "b", "c"));
}

TEST_F(CleaningServiceTest, RefusesANoTouchPathAsOutsideOfTheScope)
{
    m_tree.add("home/Caches/P.photoslibrary/\n    x size=10");
    scan();
    const CleanupCandidate forged({.url = item("P.photoslibrary/"), .category = CleanupCategory::userCaches});
    expectRefused(clean({forged}), Kind::pathNotAllowed, forged.url);
}

TEST_F(CleaningServiceTest, RefusesWhatLiesInNoRootOfTheScan)
{
    m_tree.add("home/Caches/a size=10\nhome/Documents/letter size=10");
    scan();
    for (const auto& url : {m_tree.url("home/Documents/letter"), item(""), m_tree.url("home/")}) {
        expectRefused(clean({CleanupCandidate({.url = url})}), Kind::pathNotAllowed, url);
    }
}

TEST_F(CleaningServiceTest, RefusesWhatLiesInARootOfThePolicyThatIsNoLocationOfTheClean)
{
    m_tree.add("home/Caches/a size=10\nhome/Logs/");
    const auto candidates = scan();
    m_locations = {location("home/Logs/")};
    expectRefused(clean(candidates), Kind::pathNotAllowed, item("a"));
}

TEST_F(CleaningServiceTest, RefusesEverythingInARootThatWasReplaced)
{
    m_tree.add(kThreeItems);
    const auto candidates = scan();
    std::filesystem::rename(path(""), m_tree.path("home/Caches.old"));
    std::filesystem::create_directory(path(""));
    for (const auto& name : {"a", "b", "c"}) {
        std::filesystem::rename(m_tree.path("home/Caches.old/" + std::string(name)), path(name));
    }
    const auto result = clean(candidates);
    EXPECT_THAT(result.cleanedItems, IsEmpty());
    ASSERT_THAT(result.failedItems, SizeIs(3));
    for (const auto& failed : result.failedItems) {
        EXPECT_EQ(failed.reason, words(Kind::pathNotAllowed, failed.candidate.url));
    }
}

TEST_F(CleaningServiceTest, RefusesAProtectedPathFoundInsideByItsOwnPath)
{
    m_tree.add("home/Caches/a/\n    x size=10");
    const auto candidates = scan();
    m_tree.add("home/Caches/a/.hidden/P.photoslibrary/");
    expectRefused(clean(candidates), Kind::protectedUserData, item("a/.hidden/P.photoslibrary"));
}

TEST_F(CleaningServiceTest, UsesTheRulesOfTheRootThatHoldsTheCandidate)
{
    m_tree.add("home/Caches/a/ age=9h\n    x size=10 age=9h\n    .h age=9h\nhome/Logs/b/ age=9h\n    x size=10 "
               "age=9h\n    .h age=9h");
    const auto candidates = scan({location("home/Caches/"), location("home/Logs/", {.includesHiddenFiles = true})});
    ASSERT_THAT(candidates, SizeIs(2));
    m_tree.setAge("home/Caches/a/.h", 60);
    m_tree.setAge("home/Logs/b/.h", 60);
    const auto result = clean(candidates);
    ASSERT_THAT(result.cleanedItems, SizeIs(1));
    EXPECT_EQ(result.cleanedItems[0].candidate.displayName, "a");
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason, words(Kind::cleanupCandidateRecentlyModified, m_tree.url("home/Logs/b")));
}

TEST_F(CleaningServiceTest, RefusesMoreDescendantsThanTheLimit)
{
    m_tree.add("home/Caches/a/\n    x size=1\n    .hidden count=1000");
    const auto candidates = scan();
    ASSERT_THAT(candidates, SizeIs(1));
    expectRefused(clean(candidates), Kind::cleanupValidationItemLimitExceeded, item("a"));
}

TEST_F(CleaningServiceTest, AllowsADateThatIsOffByLessThanOneSecondInEitherDirection)
{
    for (const double difference : {-1.1, -0.9, 0.9, 1.1}) {
        m_tree.add("home/Caches/a size=10");
        auto candidates = scan();
        candidates.at(0).lastModified = candidates[0].lastModified->addingSeconds(difference);
        const auto result = clean(candidates);
        if (std::abs(difference) < 1) {
            EXPECT_THAT(result.cleanedItems, SizeIs(1)) << difference;
            m_tree.remove("home/Bin/a");
        } else {
            expectRefused(result, Kind::cleanupCandidateRecentlyModified, item("a"));
            m_tree.remove("home/Caches/a");
        }
    }
}

TEST_F(CleaningServiceTest, RefusesADateThatIsNoNumber)
{
    m_tree.add("home/Caches/a size=10");
    auto candidates = scan();
    candidates.at(0).lastModified = Platform::Date{std::numeric_limits<double>::quiet_NaN()};
    expectRefused(clean(candidates), Kind::cleanupCandidateRecentlyModified, item("a"));
}

TEST_F(CleaningServiceTest, RefusesAScannedDateWhereTheVolumeTellsNoneAnyMore)
{
    m_tree.add("home/Caches/a size=10");
    auto candidates = scan();
    candidates.at(0).resourceIdentity.reset();
    const TestSupport::AlteringFileManager dateless(m_posix, TestSupport::removeDate);
    m_fileManager = &dateless;
    expectRefused(clean(candidates), Kind::unreadableAttributes, item("a"));
    candidates[0].lastModified.reset();
    EXPECT_THAT(clean(candidates).cleanedItems, SizeIs(1));
}

TEST_F(CleaningServiceTest, MovesOnlyTheScannedItemWhateverStoodThereBeforeTheWalk)
{
    /// Shows another item until the folder is walked.
    class TwoFaced final : public TestSupport::ForwardingFileManager {
    public:
        using ForwardingFileManager::ForwardingFileManager;
        [[nodiscard]] std::expected<Platform::IdentityValues, Platform::FileError> identityValues(
            const Platform::ItemReference& reference) const override
        {
            auto values = ForwardingFileManager::identityValues(reference);
            if (values && !m_isWalked) {
                values->fileResourceIdentifier = "another";
            }
            return values;
        }
        [[nodiscard]] std::unique_ptr<Platform::DirectoryEnumerator> enumerator(const Platform::ItemReference& folder,
            Platform::EnumerationOptions options, Platform::EnumerationErrorHandler onError) const override
        {
            m_isWalked = true;
            return ForwardingFileManager::enumerator(folder, options, std::move(onError));
        }

    private:
        mutable bool m_isWalked = false;
    };
    m_tree.add("home/Caches/b/\n    x size=10");
    const auto candidates = scan();
    const TwoFaced twoFaced(m_posix);
    m_fileManager = &twoFaced;
    EXPECT_THAT(clean(candidates).cleanedItems, SizeIs(1));
}

TEST_F(CleaningServiceTest, ComparesTheDateAlsoForACandidateWithoutAnIdentity)
{
    m_tree.add("home/Caches/a size=10");
    auto candidates = scan();
    candidates.at(0).resourceIdentity.reset();
    m_tree.setAge("home/Caches/a", 60);
    expectRefused(clean(candidates), Kind::cleanupCandidateRecentlyModified, item("a"));
}

TEST_F(CleaningServiceTest, CleansACandidateWithNeitherStoredValue)
{
    m_tree.add("home/Caches/a size=10");
    scan();
    EXPECT_THAT(clean({CleanupCandidate({.url = item("a")})}).cleanedItems, SizeIs(1));
}

TEST_F(CleaningServiceTest, RefusesTheSameCandidateTheSecondTime)
{
    m_tree.add("home/Caches/a size=10");
    const auto candidates = scan();
    const auto result = clean({candidates.at(0), candidates.at(0)});
    EXPECT_THAT(result.cleanedItems, SizeIs(1));
    ASSERT_THAT(result.failedItems, SizeIs(1));
    EXPECT_EQ(result.failedItems[0].reason, words(Kind::unreadableAttributes, item("a")));
}

} // namespace CleaningTests
