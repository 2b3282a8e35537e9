#include "CleanerCore/Insights/WalkPool.h"
#include "Tests/CleanerCore/Insights/InsightFixture.h"
#include "Tests/Support/ForwardingDirectoryEnumerator.h"
#include "Tests/Support/ForwardingFileManager.h"

#include <atomic>
#include <chrono>
#include <latch>
#include <memory>
#include <stop_token>
#include <thread>

namespace InsightTests {

namespace {

using CleanerCore::RootPlan;
using CleanerCore::WalkPool;
using CleanerCore::WalkRules;

/// Looks long at the folder "late", and counts how often it is entered.
class LateFolder final : public TestSupport::ForwardingFileManager {
public:
    using ForwardingFileManager::ForwardingFileManager;

    [[nodiscard]] std::unique_ptr<Platform::DirectoryEnumerator> enumerator(const Platform::ItemReference& folder,
        Platform::EnumerationOptions options, Platform::EnumerationErrorHandler onError) const override
    {
        m_entered += folder.name() == "late" ? 1 : 0;
        return std::make_unique<Items>(ForwardingFileManager::enumerator(folder, options, std::move(onError)), *this);
    }

    void awaitTheLook() { m_isLookedAt.wait(); }
    void endTheLook() { m_mayGoOn.count_down(); }
    [[nodiscard]] int entered() const { return m_entered; }

private:
    class Items final : public TestSupport::ForwardingDirectoryEnumerator {
    public:
        Items(std::unique_ptr<Platform::DirectoryEnumerator> inner, const LateFolder& owner)
            : ForwardingDirectoryEnumerator(std::move(inner))
            , m_owner(owner)
        {
        }

        bool next() override
        {
            const bool hasNext = ForwardingDirectoryEnumerator::next();
            if (hasNext && name() == "late") {
                m_owner.m_isLookedAt.count_down();
                m_owner.m_mayGoOn.wait();
            }
            return hasNext;
        }

    private:
        const LateFolder& m_owner;
    };

    mutable std::latch m_isLookedAt{1};
    mutable std::latch m_mayGoOn{1};
    mutable std::atomic<int> m_entered = 0;
};

} // namespace

TEST(WalkPool, ForgetsWhatIsGivenAwayWhileItWaitsForTheThreads)
{
    const TemporaryTree tree("first/late/\nsecond/");
    const InsightConfiguration configuration(smallLimits());
    const Platform::PosixFileManager posix;
    // Another thread may take the folder up before the first is done with its stretch, which is sound.
    for (int round = 0; round < 20; ++round) {
        LateFolder folders(posix);
        WalkPool pool(2);
        while (!pool.hasIdleThreads()) {
            pool.setBudget(1, 0);
        }
        const auto walk = [&](const RootPlan& plan, const WalkRules& rules, const std::stop_token& stop) {
            const auto reader = pool.begin(rules, stop);
            return reader->delegate->addSubfolder(plan.root());
        };
        {
            std::stop_source stop;
            const RootPlan plan(tree.url("first/"), {}, std::nullopt);
            const WalkRules rules{.fileManager = folders, .configuration = configuration, .plan = plan};
            const auto task = walk(plan, rules, stop.get_token());
            folders.awaitTheLook();
            stop.request_stop();
            std::jthread discarding([&] { pool.discard(); });
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
            folders.endTheLook();
        }
        const int entered = folders.entered();
        std::stop_source stop;
        const RootPlan plan(tree.url("second/"), {}, std::nullopt);
        const WalkRules rules{.fileManager = folders, .configuration = configuration, .plan = plan};
        pool.setBudget(1'000, 0);
        const auto task = walk(plan, rules, stop.get_token());
        EXPECT_TRUE(pool.take(*task).isLast);
        stop.request_stop();
        pool.discard();
        ASSERT_EQ(folders.entered(), entered) << "a folder of the first root was entered during the second";
    }
}

} // namespace InsightTests
