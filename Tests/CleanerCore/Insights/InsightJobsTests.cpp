#include "Tests/CleanerCore/Insights/InsightFixture.h"

#include "Tests/Support/FaultyFileManager.h"

#include <cerrno>
#include <chrono>
#include <fmt/format.h>
#include <random>
#include <stop_token>
#include <thread>

namespace InsightTests {

namespace {

using TestSupport::FaultyFileManager;
using TestSupport::FileManagerCall;

/// Folders, packages, findings, links and files of all ages, some of them at the limits.
class RandomTree {
public:
    explicit RandomTree(unsigned seed)
        : m_random(seed)
    {
    }

    std::string layout()
    {
        for (const auto* const root : {"home/Downloads", "home/Documents", "home/Library/Developer"}) {
            fill(root, 0);
        }
        return std::move(m_lines);
    }
    [[nodiscard]] const std::vector<std::string>& folders() const { return m_folders; }
    [[nodiscard]] const std::vector<std::string>& files() const { return m_files; }

private:
    int upTo(int most) { return std::uniform_int_distribution(0, most)(m_random); }

    void fill(const std::string& folder, int depth)
    {
        static constexpr std::string_view folderNames[] = {"f", "g", "X.app", "keygen", "Y.bundle", ".hidden", "h"};
        static constexpr std::string_view fileNames[] = {"a", "b.pkg", "c.sh", "crack.zip", "d.webloc", ".e"};
        m_lines += folder + "/\n";
        m_folders.push_back(folder);
        for (int count = upTo(10); count > 0; --count) {
            const auto file = fmt::format("{}/{}{}", folder, m_number++, fileNames[static_cast<std::size_t>(upTo(5))]);
            m_lines += fmt::format("{} size={}K age={}h\n", file, upTo(4) * 4, upTo(60));
            m_files.push_back(file);
        }
        if (upTo(2) == 0) {
            m_lines += fmt::format("{}/l{} -> nowhere\n", folder, m_number++);
        }
        if (depth < 5) {
            for (int count = upTo(4); count > 0; --count) {
                fill(fmt::format("{}/{}{}", folder, m_number++, folderNames[static_cast<std::size_t>(upTo(6))]),
                    depth + 1);
            }
        }
    }

    std::mt19937 m_random;
    int m_number = 0;
    std::string m_lines;
    std::vector<std::string> m_folders;
    std::vector<std::string> m_files;
};

} // namespace

TEST_F(InsightTest, IsTheSameForEachNumberOfJobs)
{
    bool wasTruncated = false;
    bool wasWhole = false;
    std::size_t skippedItems = 0;
    for (unsigned seed = 1; seed <= 6; ++seed) {
        RandomTree random(seed);
        TemporaryTree tree("home/Library/\n" + random.layout());
        FaultyFileManager faulty(m_posix);
        for (std::size_t index = 0; index < random.folders().size(); index += 9) {
            faulty.fail({.call = FileManagerCall::listFolder,
                .systemError = EIO,
                .duration = TestSupport::FaultDuration::fromThenOn,
                .path = tree.path(random.folders()[index])});
        }
        for (std::size_t index = 0; index < random.files().size(); index += 13) {
            faulty.fail({.call = FileManagerCall::entryResourceValues,
                .systemError = EIO,
                .duration = TestSupport::FaultDuration::fromThenOn,
                .path = tree.path(random.files()[index])});
        }
        m_limits.maximumResultCount = 20;
        m_limits.maximumRecentReviewSkippedItems = 30;
        for (const std::int64_t visits : {128, 150, 300, 1'000, 100'000}) {
            m_limits.maximumVisitedItemsPerRoot = visits;
            const auto scanWith = [&](unsigned jobs, const Platform::FileManager& fileManager) {
                m_options.jobs = jobs;
                return MacStorageInsightScanner(
                    tree.url("home/"), fileManager, InsightConfiguration(m_limits), m_options)
                    .scan(tree.now());
            };
            for (const Platform::FileManager* fileManager : {static_cast<const Platform::FileManager*>(&m_posix),
                     static_cast<const Platform::FileManager*>(&faulty)}) {
                const auto expected = scanWith(1, *fileManager);
                wasTruncated = wasTruncated || expected.isTruncated;
                wasWhole = wasWhole || !std::ranges::any_of(expected.heatmapItems, &StorageMapItem::isTruncated);
                skippedItems += expected.skippedItems.size();
                for (const unsigned jobs : {2U, 8U}) {
                    const auto report = scanWith(jobs, *fileManager);
                    ASSERT_EQ(report.heatmapItems, expected.heatmapItems) << seed << " " << visits << " " << jobs;
                    ASSERT_EQ(report.skippedItems, expected.skippedItems) << seed << " " << visits << " " << jobs;
                    ASSERT_EQ(report, expected) << seed << " " << visits << " " << jobs;
                }
            }
        }
    }
    EXPECT_TRUE(wasTruncated);
    EXPECT_TRUE(wasWhole);
    EXPECT_GT(skippedItems, 100U);
}

TEST_F(InsightTest, StopsSoonOnSeveralThreads)
{
    m_tree.add(
        "home/Documents/a/f count=3000 text=x\nhome/Documents/b/f count=3000 text=x\nhome/Documents/d/ levels=300");
    m_options.jobs = 2;
    m_limits.maximumVisitedItemsPerRoot = 100'000;
    for (int round = 0; round < 20; ++round) {
        std::stop_source source;
        std::jthread stopper([&] {
            std::this_thread::sleep_for(std::chrono::microseconds(200 * round));
            source.request_stop();
        });
        const auto report = scan({}, source.get_token());
        EXPECT_FALSE(report.isTruncated);
        for (const auto& item : report.heatmapItems) {
            EXPECT_LE(item.itemCount, 6'302);
        }
    }
}

} // namespace InsightTests
