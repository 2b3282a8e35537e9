#include "Tests/Platform/Services/DefaultsFixture.h"

#include "Platform/Files/FileLock.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/FailingUserDefaults.h"

#include <array>
#include <atomic>
#include <chrono>
#include <fmt/format.h>
#include <latch>
#include <thread>

namespace Platform {

namespace {

using namespace DefaultsTests;
using std::chrono::steady_clock;
using testing::ElementsAre;

enum class Turns { taken, prevented };

class FileUserDefaultsSharingTest : public FileUserDefaultsTest {
protected:
    /// Two processes set `count` keys of their own each, one at a time. Gives how many are there in the end.
    int keysOfTwoProcesses(Turns turns, int count)
    {
        m_tree.add(turns == Turns::taken ? "config/Karvello/" : "config/Karvello/preferences.json.lock/");
        TestSupport::inTwoProcesses([&](int number) {
            FileUserDefaults defaults(m_files, m_file);
            for (int step = 0; step < count; ++step) {
                EXPECT_TRUE(defaults.set(fmt::format("{}-{}", number, step), std::int64_t{step}));
            }
        });
        const FileUserDefaults defaults(m_files, m_file);
        int found = 0;
        for (const int number : {0, 1}) {
            for (int step = 0; step < count; ++step) {
                found +=
                    defaults.value(fmt::format("{}-{}", number, step)) == DefaultsValue(std::int64_t{step}) ? 1 : 0;
            }
        }
        return found;
    }

    FileURL m_lock = m_tree.url("config/Karvello/preferences.json.lock");
};

} // namespace

TEST_F(FileUserDefaultsSharingTest, LosesNoKeyOfTwoProcesses)
{
    EXPECT_EQ(keysOfTwoProcesses(Turns::taken, 1000), 2000);
    EXPECT_THAT(names(), ElementsAre("preferences.json"));
}

TEST_F(FileUserDefaultsSharingTest, WouldLoseKeysOfTwoProcessesWithoutTakingTurns)
{
    EXPECT_LT(keysOfTwoProcesses(Turns::prevented, 1000), 2000);
}

TEST_F(FileUserDefaultsSharingTest, LosesNoKeyOfManyThreads)
{
    FileUserDefaults defaults(m_files, m_file);
    std::atomic<int> heard = 0;
    const auto observation = defaults.observe([&](auto keys) { heard += static_cast<int>(keys.size()); });
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&, thread] {
                for (int step = 0; step < 50; ++step) {
                    const auto key = fmt::format("{}-{}", thread, step);
                    EXPECT_TRUE(defaults.set(key, std::int64_t{step}));
                    EXPECT_EQ(defaults.value(key), DefaultsValue(std::int64_t{step}));
                }
            });
            threads.emplace_back([&] {
                for (int step = 0; step < 50; ++step) {
                    defaults.refresh();
                    std::ignore = defaults.value("0-0");
                }
            });
        }
    }
    EXPECT_EQ(heard, 200);
    const FileUserDefaults fresh(m_files, m_file);
    for (int thread = 0; thread < 4; ++thread) {
        for (int step = 0; step < 50; ++step) {
            EXPECT_EQ(fresh.value(fmt::format("{}-{}", thread, step)), DefaultsValue(std::int64_t{step}));
        }
    }
}

TEST_F(FileUserDefaultsSharingTest, SaysSoWhereAnotherProcessKeepsTheLock)
{
    FileUserDefaults defaults(m_files, m_file);
    ASSERT_TRUE(defaults.set("a", std::int64_t{1}));
    const auto held = FileLock::acquire(m_lock, std::chrono::milliseconds(0));
    ASSERT_TRUE(held);
    const auto start = steady_clock::now();
    EXPECT_TRUE(defaults.set("a", std::int64_t{1})) << "nothing is to be written";
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(1));
    const auto saved = defaults.set("a", std::int64_t{2});
    ASSERT_FALSE(saved);
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(saved.error().localizedDescription(), "The file “preferences.json” couldn’t be saved.");
    EXPECT_EQ(defaults.value("a"), DefaultsValue(std::int64_t{1}));
}

TEST_F(FileUserDefaultsSharingTest, SavesWhereThereCanBeNoLock)
{
    m_tree.add("config/Karvello/preferences.json.lock -> ../../victim");
    FileUserDefaults defaults(m_files, m_file);
    EXPECT_TRUE(defaults.set("a", true));
    EXPECT_EQ(FileUserDefaults(m_files, m_file).boolean("a"), true);
    EXPECT_FALSE(std::filesystem::exists(m_tree.path("victim")));
}

TEST_F(FileUserDefaultsSharingTest, TellsOnlyOfKeysThatReallyDiffer)
{
    FileUserDefaults one(m_files, m_file);
    ASSERT_TRUE(one.apply(std::array{DefaultsChange{"a", true}, DefaultsChange{"b", true}, DefaultsChange{"c", 1.5},
        DefaultsChange{"d", std::string("x")}}));
    FileUserDefaults other(m_files, m_file);
    std::vector<std::vector<std::string>> heard;
    const auto observation = other.observe([&](auto keys) { heard.push_back(keysOf(keys)); });
    other.refresh();
    EXPECT_TRUE(heard.empty());
    setText(R"({"0":null,"a":true,"c":2.5,"d":"x","e":1})");
    other.refresh();
    other.refresh();
    EXPECT_THAT(heard, ElementsAre(ElementsAre("b", "c", "e")));
    setText(R"({"0":[],"a" : true,"c":2.5,"d":"x","e":1})");
    other.refresh();
    EXPECT_EQ(heard.size(), 1) << "no value differs";
}

TEST_F(FileUserDefaultsSharingTest, RefreshesWithoutWaitingForASave)
{
    /// Lets the test in while a file is being written.
    class SlowFileManager final : public TestSupport::ForwardingFileManager {
    public:
        using ForwardingFileManager::ForwardingFileManager;
        [[nodiscard]] std::expected<void, FileError> writeAtomically(
            std::string_view bytes, const FileURL& url) const override
        {
            auto written = inner().writeAtomically(bytes, url);
            isWriting.count_down();
            mayEnd.wait();
            return written;
        }
        mutable std::latch isWriting{1};
        mutable std::latch mayEnd{1};
    };
    SlowFileManager files(m_files);
    FileUserDefaults defaults(files, m_file);
    std::jthread saving([&] { EXPECT_TRUE(defaults.set("a", true)); });
    files.isWriting.wait();
    setText(R"({"a":true,"b":true})");
    defaults.refresh();
    EXPECT_EQ(defaults.value("a"), std::nullopt);
    files.mayEnd.count_down();
    saving.join();
    EXPECT_EQ(defaults.boolean("a"), true);
    EXPECT_EQ(defaults.boolean("b"), true) << "the saving thread looks again";
}

TEST_F(FileUserDefaultsSharingTest, FailsTheSavesThatATestWantsToFail)
{
    FileUserDefaults real(m_files, m_file);
    TestSupport::FailingUserDefaults defaults(real);
    defaults.failSave(2);
    EXPECT_TRUE(defaults.set("a", true));
    EXPECT_FALSE(defaults.set("b", true));
    EXPECT_TRUE(defaults.set("c", true));
    defaults.failAllSaves(EROFS);
    EXPECT_EQ(defaults.set("d", true).error().kind, FileErrorKind::readOnlyVolume);
    defaults.failNoSave();
    EXPECT_TRUE(defaults.set("e", true));
    EXPECT_EQ(defaults.saveCount(), 5);
    EXPECT_EQ(defaults.failureCount(), 2);
    EXPECT_EQ(defaults.value("b"), std::nullopt);
    EXPECT_EQ(defaults.boolean("c"), true);
}

} // namespace Platform
