#include "KarvelloUI/Stores/DefaultsWatch.h"

#include "Platform/Files/PosixFileManager.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/TemporaryTree.h"

#include <QThread>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>

namespace KarvelloUI {

namespace {

class DefaultsWatchTest : public testing::Test {
protected:
    void listen()
    {
        QObject::connect(m_watch.get(), &DefaultsWatch::keysChanged, m_watch.get(), [this](const QStringList& keys) {
            EXPECT_EQ(QThread::currentThread(), m_watch->thread());
            m_heard += keys;
        });
    }

    /// In a process of its own.
    void setElsewhere(std::string_view key, std::int64_t value)
    {
        TestSupport::inChildProcess([&] {
            Platform::FileUserDefaults defaults(m_files, m_file);
            EXPECT_TRUE(defaults.set(key, value));
        });
    }

    [[nodiscard]] std::optional<double> number(std::string_view key) const { return m_defaults.number(key); }

    TestSupport::EventLoop m_loop;
    TestSupport::TemporaryTree m_tree;
    Platform::PosixFileManager m_files;
    Platform::FileURL m_file = m_tree.url("config/Karvello/preferences.json");
    Platform::FileUserDefaults m_defaults{m_files, m_file};
    std::unique_ptr<DefaultsWatch> m_watch = std::make_unique<DefaultsWatch>(m_defaults);
    QStringList m_heard;
};

} // namespace

TEST_F(DefaultsWatchTest, TellsOfAnotherProcessEachTime)
{
    listen();
    for (std::int64_t round = 1; round <= 3; ++round) {
        setElsewhere("a", round);
        EXPECT_TRUE(m_loop.runUntil([&] { return m_heard.size() == round; }));
        EXPECT_EQ(number("a"), static_cast<double>(round));
    }
    EXPECT_EQ(m_heard, QStringList(3, QStringLiteral("a")));
}

TEST_F(DefaultsWatchTest, TellsOfAChangeOfThisProcessFromTheEventLoopOnly)
{
    listen();
    ASSERT_TRUE(m_defaults.set("a", true));
    EXPECT_TRUE(m_heard.isEmpty());
    EXPECT_TRUE(m_loop.runUntil([&] { return !m_heard.isEmpty(); }));
    // The file's own event comes, too, and brings nothing new.
    setElsewhere("b", 1);
    EXPECT_TRUE(m_loop.runUntil([&] { return m_heard.contains(QStringLiteral("b")); }));
    EXPECT_EQ(m_heard, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST_F(DefaultsWatchTest, BringsAChangeOfAnotherThreadToTheMainThread)
{
    listen();
    std::jthread([&] { EXPECT_TRUE(m_defaults.set("a", true)); }).join();
    EXPECT_TRUE(m_loop.runUntil([&] { return m_heard == QStringList{QStringLiteral("a")}; }));
}

TEST_F(DefaultsWatchTest, FindsWhatAnotherProcessDidBeforeItBegan)
{
    m_watch.reset();
    setElsewhere("a", 1);
    EXPECT_EQ(number("a"), std::nullopt);
    m_watch = std::make_unique<DefaultsWatch>(m_defaults);
    EXPECT_EQ(number("a"), 1);
}

TEST_F(DefaultsWatchTest, TellsNothingAfterItsEnd)
{
    listen();
    ASSERT_TRUE(m_defaults.set("a", true));
    m_watch.reset();
    ASSERT_TRUE(m_defaults.set("b", true));
    m_loop.handleEvents();
    EXPECT_TRUE(m_heard.isEmpty());
}

} // namespace KarvelloUI
