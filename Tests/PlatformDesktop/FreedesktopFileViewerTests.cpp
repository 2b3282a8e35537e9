#include "PlatformDesktop/FreedesktopFileViewer.h"
#include "Tests/PlatformDesktop/DesktopServicesFixture.h"
#include "Tests/PlatformDesktop/FakePortal.h"

#include <QtDBus/QDBusUnixFileDescriptor>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

using namespace PlatformDesktopTests;
using Platform::FileURL;
using PlatformDesktop::FreedesktopFileViewer;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kManager = "org.freedesktop.FileManager1";

class FreedesktopFileViewerTest : public DesktopServicesTest {
protected:
    FreedesktopFileViewerTest()
    {
        addProgram(m_program);
        // Whoever opens this file starts it.
        addProgram(m_item.path());
    }

    std::unique_ptr<FreedesktopFileViewer> viewer() const
    {
        return std::make_unique<FreedesktopFileViewer>(
            m_bus, FreedesktopFileViewer::Settings{.programFolders = {m_tree.path("bin")}, .patience = m_patience});
    }
    bool select(const FileURL& item)
    {
        const auto viewer = this->viewer();
        return answerOf<bool>([&](const auto& answer) { viewer->select(item, answer); }).value_or(false);
    }
    bool open(const FileURL& folder)
    {
        const auto viewer = this->viewer();
        return answerOf<bool>([&](const auto& answer) { viewer->open(folder, answer); }).value_or(false);
    }

    /// Selects, or opens a folder, and lets the portal respond when it was asked.
    bool isTakenByPortal(const FakePortal& portal, unsigned response, const FileURL& item, bool isSelected)
    {
        const auto viewer = this->viewer();
        std::optional<bool> taken;
        const auto answer = [&taken](bool isTaken) { taken = isTaken; };
        isSelected ? viewer->select(item, answer) : viewer->open(item, answer);
        EXPECT_TRUE(m_loop.runUntil([&portal] { return portal.isAsked(); }));
        portal.respond(response);
        EXPECT_TRUE(m_loop.runUntil([&taken] { return taken.has_value(); }));
        return taken.value_or(false);
    }

    static std::optional<QDBusMessage> agree(const QDBusMessage& call) { return call.createReply(); }
    static std::optional<QDBusMessage> saysNothing(const QDBusMessage& /*call*/) { return std::nullopt; }

    static void expectSameItem(int descriptor, const FileURL& url)
    {
        struct stat given{};
        struct stat there{};
        EXPECT_EQ(fstat(descriptor, &given), 0);
        EXPECT_EQ(lstat(url.path().c_str(), &there), 0);
        EXPECT_EQ(given.st_ino, there.st_ino);
        EXPECT_EQ(given.st_dev, there.st_dev);
    }

    /// The library takes no NUL, and the file system no slash.
    TestSupport::TemporaryTree m_tree{"bin/\nfolder/\n"};
    const std::string m_program = m_tree.path("bin/xdg-open");
    const FileURL m_folder = m_tree.url("folder/");
    const FileURL m_item = m_tree.url("folder/item");
    std::chrono::milliseconds m_patience = 5s;
};

TEST_F(FreedesktopFileViewerTest, AnItemIsShownByTheFileManager)
{
    const FakeBusService manager(kManager, agree);
    EXPECT_TRUE(select(m_item));
    ASSERT_THAT(manager.methods(), ElementsAre("ShowItems"));
    const auto& call = manager.calls().front();
    EXPECT_EQ(call.interface(), QLatin1String(kManager));
    EXPECT_EQ(call.path(), QLatin1String("/org/freedesktop/FileManager1"));
    EXPECT_EQ(
        call.arguments(), (QVariantList{QStringList{QString::fromStdString("file://" + m_item.path())}, QString()}));
    letTimePass();
    EXPECT_FALSE(wasStarted(m_item.path()));
    EXPECT_FALSE(wasStarted(m_program));
}

TEST_F(FreedesktopFileViewerTest, AnyNameArrivesByteForByte)
{
    const FakeBusService manager(kManager, agree);
    EXPECT_TRUE(select(FileURL("/a b/100%/\xFF\n\xE2\x80\xAE?#;\"'")));
    EXPECT_EQ(manager.calls().front().arguments().constFirst().toStringList(),
        QStringList{QStringLiteral("file:///a%20b/100%25/%FF%0A%E2%80%AE%3F%23%3B%22'")});
}

TEST_F(FreedesktopFileViewerTest, AFolderIsOpenedByTheFileManager)
{
    const FakeBusService manager(kManager, agree);
    EXPECT_TRUE(open(FileURL(m_folder.path())));
    ASSERT_THAT(manager.methods(), ElementsAre("ShowFolders"));
    EXPECT_EQ(manager.calls().front().arguments().constFirst().toStringList(),
        QStringList{QString::fromStdString("file://" + m_folder.path() + "/")});
}

TEST_F(FreedesktopFileViewerTest, NothingButAFolderIsOpened)
{
    std::filesystem::create_directory_symlink(m_folder.path(), m_tree.path("link"));
    const FakeBusService manager(kManager, agree);
    const FakePortal portal;
    EXPECT_FALSE(open(m_item));
    EXPECT_FALSE(open(FileURL::folder(m_item.path())));
    EXPECT_FALSE(open(m_tree.url("link/")));
    EXPECT_FALSE(open(m_tree.url("absent/")));
    letTimePass();
    EXPECT_THAT(manager.methods(), IsEmpty());
    EXPECT_THAT(portal.methods(), IsEmpty());
    EXPECT_FALSE(wasStarted(m_program));
    EXPECT_FALSE(wasStarted(m_item.path()));
}

TEST_F(FreedesktopFileViewerTest, AManagerThatDoesNotAnswerIsGivenUpAndNoOtherIsAsked)
{
    m_patience = 200ms;
    const FakeBusService manager(kManager, saysNothing);
    const FakePortal portal;
    EXPECT_FALSE(select(m_item));
    EXPECT_FALSE(open(m_folder));
    EXPECT_THAT(manager.methods(), ElementsAre("ShowItems", "ShowFolders"));
    EXPECT_THAT(portal.methods(), IsEmpty());
    EXPECT_FALSE(wasStarted(m_program));
}

TEST_F(FreedesktopFileViewerTest, WithoutAManagerThePortalIsHandedTheFolder)
{
    const FakePortal portal;
    EXPECT_TRUE(isTakenByPortal(portal, 0, m_folder, false));
    ASSERT_THAT(portal.methods(), ElementsAre("OpenDirectory"));
    const auto& call = portal.calls().front();
    EXPECT_EQ(call.interface(), QLatin1String("org.freedesktop.portal.OpenURI"));
    EXPECT_EQ(call.signature(), QLatin1String("sha{sv}"));
    const int descriptor = call.arguments().at(1).value<QDBusUnixFileDescriptor>().fileDescriptor();
    expectSameItem(descriptor, m_folder);
    // Portals take no other.
    EXPECT_EQ(fcntl(descriptor, F_GETFL) & (O_PATH | O_NOFOLLOW), O_PATH);
    EXPECT_FALSE(wasStarted(m_program));
}

TEST_F(FreedesktopFileViewerTest, WithoutAManagerThePortalShowsAnItemAndCannotReadIt)
{
    const FakeBusService manager(kManager, FakePortal::refusing());
    const FakePortal portal;
    EXPECT_TRUE(isTakenByPortal(portal, 0, m_item, true));
    ASSERT_THAT(portal.methods(), ElementsAre("OpenDirectory"));
    const int descriptor = portal.calls().front().arguments().at(1).value<QDBusUnixFileDescriptor>().fileDescriptor();
    expectSameItem(descriptor, m_item);
    char byte = 0;
    EXPECT_EQ(read(descriptor, &byte, 1), -1);
    letTimePass();
    EXPECT_FALSE(wasStarted(m_item.path()));
}

TEST_F(FreedesktopFileViewerTest, WhatTheUserCancelledIsNotShownAnotherWay)
{
    const FakePortal portal;
    EXPECT_TRUE(isTakenByPortal(portal, 1, m_folder, false));
    letTimePass();
    EXPECT_FALSE(wasStarted(m_program));
}

TEST_F(FreedesktopFileViewerTest, APortalThatDoesNotBeginIsGivenUpAndTold)
{
    m_patience = 200ms;
    const FakePortal portal(saysNothing);
    EXPECT_FALSE(open(m_folder));
    EXPECT_TRUE(m_loop.runUntil([&portal] { return portal.calls().size() == 2; }));
    EXPECT_THAT(portal.methods(), ElementsAre("OpenDirectory", "Close"));
    EXPECT_FALSE(wasStarted(m_program));
}

TEST_F(FreedesktopFileViewerTest, APortalThatCannotIsFollowedByTheProgramOfTheDesktop)
{
    const FakePortal portal;
    EXPECT_TRUE(isTakenByPortal(portal, 2, m_folder, false));
    EXPECT_EQ(saidBy(m_program), "xdg-open\nfile://" + m_folder.path() + "/\n");
}

TEST_F(FreedesktopFileViewerTest, WithoutAnyServiceTheProgramOpensTheFolder)
{
    EXPECT_TRUE(open(m_folder));
    EXPECT_EQ(saidBy(m_program), "xdg-open\nfile://" + m_folder.path() + "/\n");
}

TEST_F(FreedesktopFileViewerTest, WithoutABusTheProgramOpensTheFolderOfAnItem)
{
    m_bus = withoutABus();
    EXPECT_TRUE(select(m_item));
    EXPECT_EQ(saidBy(m_program), "xdg-open\nfile://" + m_folder.path() + "/\n");
    EXPECT_FALSE(wasStarted(m_item.path()));
}

TEST_F(FreedesktopFileViewerTest, ALinkIsShownByItsFolderAndNotByWhatItLeadsTo)
{
    std::filesystem::create_symlink(m_item.path(), m_tree.path("link"));
    const FakePortal portal;
    EXPECT_TRUE(select(m_tree.url("link")));
    EXPECT_EQ(saidBy(m_program), "xdg-open\nfile://" + m_tree.root().path() + "/\n");
    EXPECT_THAT(portal.methods(), IsEmpty());
}

TEST_F(FreedesktopFileViewerTest, WithoutAnybodyNothingIsShown)
{
    std::filesystem::remove(m_program);
    EXPECT_FALSE(select(m_item));
    EXPECT_FALSE(open(m_folder));
    EXPECT_FALSE(select(m_tree.url("gone/item")));
}

TEST_F(FreedesktopFileViewerTest, AFolderThatBecameAFileMeanwhileIsNotOpened)
{
    const auto place = m_tree.path("bin/place");
    std::filesystem::create_directory(place);
    const FakeBusService manager(kManager, [&place](const QDBusMessage& call) {
        std::filesystem::remove(place);
        addProgram(place);
        return FakePortal::refusing()(call);
    });
    EXPECT_FALSE(open(FileURL(place)));
    letTimePass();
    EXPECT_FALSE(wasStarted(place));
    EXPECT_FALSE(wasStarted(m_program));
}

TEST_F(FreedesktopFileViewerTest, NothingIsAnsweredAfterItsEnd)
{
    const FakeBusService manager(kManager, saysNothing);
    bool isAnswered = false;
    const auto answer = [&isAnswered](bool) { isAnswered = true; };
    viewer()->select(m_item, answer);
    viewer()->open(m_item, answer);
    auto asking = viewer();
    asking->select(m_item, answer);
    EXPECT_TRUE(m_loop.runUntil([&manager] { return !manager.calls().empty(); }));
    asking.reset();
    manager.send(manager.calls().front().createReply());
    letTimePass();
    EXPECT_FALSE(isAnswered);
}

TEST_F(FreedesktopFileViewerTest, ItsEndTakesBackWhatThePortalWasAsked)
{
    const FakePortal portal;
    auto asking = viewer();
    asking->open(m_folder, [](bool) { FAIL(); });
    EXPECT_TRUE(m_loop.runUntil([&portal] { return portal.isAsked(); }));
    const auto handle = FakePortal::handleOf(portal.calls().front());
    asking.reset();
    EXPECT_TRUE(m_loop.runUntil([&portal] { return portal.calls().size() == 2; }));
    EXPECT_EQ(portal.calls().back().path(), handle);
    EXPECT_EQ(portal.calls().back().member(), QLatin1String("Close"));
}

TEST_F(FreedesktopFileViewerTest, AnAnswerMayBeItsEnd)
{
    std::filesystem::remove(m_program);
    for (const bool isSelected : {true, false}) {
        auto viewer = this->viewer();
        m_bus = std::make_shared<DesktopBus>(DesktopBus::Settings{.hasSessionBus = true});
        const auto end = [&viewer](bool) { viewer.reset(); };
        isSelected ? viewer->select(m_item, end) : viewer->open(m_folder, end);
        EXPECT_TRUE(m_loop.runUntil([&viewer] { return viewer == nullptr; }));
        m_loop.handleEvents();
    }
}

TEST(FreedesktopFileViewerSettings, ComeFromTheSession)
{
    using Settings = FreedesktopFileViewer::Settings;
    const auto foldersFor = [](const char* path) {
        return Settings::current(Platform::Environment(std::map<std::string, std::string, std::less<>>{{"PATH", path}}))
            .programFolders;
    };
    EXPECT_THAT(foldersFor("/usr/bin:/bin"), ElementsAre("/usr/bin", "/bin"));
    // The folder that one happens to be in is none to start programs from.
    EXPECT_THAT(foldersFor(":.:bin::/bin:"), ElementsAre("/bin"));
    EXPECT_THAT(Settings::current({}).programFolders, IsEmpty());
}

} // namespace
