#include "PlatformDesktop/PortalFileDialogs.h"
#include "Tests/PlatformDesktop/DesktopServicesFixture.h"
#include "Tests/PlatformDesktop/FakePortal.h"

namespace {

using namespace PlatformDesktopTests;
using Platform::FileDialogs;
using Platform::FileURL;
using PlatformDesktop::PortalFileDialogs;
using testing::ElementsAre;
using testing::IsEmpty;

using Picked = std::optional<FileURL>;

/// Dialogs of the application's own, which the test answers.
class OwnDialogs final : public FileDialogs {
public:
    struct Log {
        std::vector<std::string> asked;
        Answer answer;
    };

    explicit OwnDialogs(Log& log)
        : m_log(log)
    {
    }

    void chooseFolder(FolderRequest request, Answer answer) override
    {
        m_log.asked.push_back(request.message + "|" + request.prompt + "|" + request.directory.path());
        m_log.answer = std::move(answer);
    }
    void chooseDestination(SaveRequest request, Answer answer) override
    {
        m_log.asked.push_back(request.message + "|" + request.suggestedName + "|" + request.directory.path());
        m_log.answer = std::move(answer);
    }

private:
    Log& m_log;
};

class PortalFileDialogsTest : public DesktopServicesTest {
protected:
    std::unique_ptr<PortalFileDialogs> dialogs(bool hasOwn = true)
    {
        return std::make_unique<PortalFileDialogs>(
            m_bus, hasOwn ? std::make_unique<OwnDialogs>(m_own) : nullptr, PortalFileDialogs::Settings{m_patience});
    }

    /// Notes what was picked.
    FileDialogs::Answer noting(std::vector<Picked>& answers) const
    {
        return [&answers](Picked picked) { answers.push_back(std::move(picked)); };
    }
    bool waitForAnswer()
    {
        return m_loop.runUntil([this] { return !m_answers.empty(); });
    }
    bool waitForCalls(const FakePortal& portal, std::size_t count)
    {
        return m_loop.runUntil([&] { return portal.calls().size() >= count; });
    }

    /// What is picked if the portal says this.
    Picked pickedFor(const QVariantList& response)
    {
        const FakePortal portal;
        const auto dialogs = this->dialogs();
        m_answers.clear();
        dialogs->chooseFolder(m_folderRequest, noting(m_answers));
        EXPECT_TRUE(waitForCalls(portal, 1));
        portal.respond(FakePortal::handleOf(portal.calls().front()), response);
        EXPECT_TRUE(waitForAnswer());
        EXPECT_THAT(m_own.asked, IsEmpty());
        return m_answers.empty() ? Picked() : m_answers.front();
    }
    Picked pickedForUris(const QVariant& uris) { return pickedFor({0U, QVariantMap{{QStringLiteral("uris"), uris}}}); }

    static QVariantMap uris(const char* uri)
    {
        return {{QStringLiteral("uris"), QStringList{QString::fromLatin1(uri)}}};
    }

    OwnDialogs::Log m_own;
    std::vector<Picked> m_answers;
    std::chrono::milliseconds m_patience = 5s;
    const FileDialogs::FolderRequest m_folderRequest{
        .message = "Pick a folder", .prompt = "Pick", .directory = FileURL::folder("/a\xFF b")};
    const FileDialogs::SaveRequest m_saveRequest{
        .message = "Export", .suggestedName = "report.json", .directory = FileURL::folder("/home/a")};
};

TEST_F(PortalFileDialogsTest, AFolderIsChosen)
{
    const FakePortal portal;
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    EXPECT_THAT(m_answers, IsEmpty());
    ASSERT_TRUE(waitForCalls(portal, 1));
    const auto& call = portal.calls().front();
    EXPECT_EQ(call.interface(), QLatin1String("org.freedesktop.portal.FileChooser"));
    EXPECT_EQ(call.member(), QLatin1String("OpenFile"));
    EXPECT_EQ(call.signature(), QLatin1String("ssa{sv}"));
    EXPECT_EQ(call.arguments().at(1).toString(), QLatin1String("Pick a folder"));
    const auto options = FakePortal::optionsOf(call);
    EXPECT_EQ(options.value(QStringLiteral("directory")), QVariant(true));
    EXPECT_EQ(options.value(QStringLiteral("accept_label")), QVariant(QStringLiteral("Pick")));
    EXPECT_EQ(options.value(QStringLiteral("current_folder")), QVariant(QByteArray("/a\xFF b\0", 6)));
    portal.respond(0, uris("file:///b%FF%0A%25/c"));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(m_answers, ElementsAre(Picked(FileURL::folder("/b\xFF\n%/c"))));
    letTimePass();
    EXPECT_EQ(m_answers.size(), 1U);
    EXPECT_THAT(portal.methods(), ElementsAre("OpenFile"));
    EXPECT_THAT(m_own.asked, IsEmpty());
}

TEST_F(PortalFileDialogsTest, ADestinationIsChosen)
{
    const FakePortal portal;
    const auto dialogs = this->dialogs();
    dialogs->chooseDestination(m_saveRequest, noting(m_answers));
    ASSERT_TRUE(waitForCalls(portal, 1));
    const auto& call = portal.calls().front();
    EXPECT_EQ(call.member(), QLatin1String("SaveFile"));
    EXPECT_EQ(call.arguments().at(1).toString(), QLatin1String("Export"));
    const auto options = FakePortal::optionsOf(call);
    EXPECT_EQ(options.value(QStringLiteral("current_name")), QVariant(QStringLiteral("report.json")));
    EXPECT_EQ(options.value(QStringLiteral("current_folder")), QVariant(QByteArray("/home/a\0", 8)));
    EXPECT_FALSE(options.contains(QStringLiteral("directory")));
    portal.respond(0, uris("file:///home/a/other.json"));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(m_answers, ElementsAre(Picked(FileURL("/home/a/other.json"))));
}

TEST_F(PortalFileDialogsTest, APortalThatRespondsBeforeItAnswersIsHeard)
{
    const auto dialogs = this->dialogs();
    FakePortal* self = nullptr;
    const FakePortal portal([&self](const QDBusMessage& call) {
        self->respond(FakePortal::handleOf(call), {0U, uris("file:///a")});
        return FakePortal::beginning()(call);
    });
    self = const_cast<FakePortal*>(&portal);
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(m_answers, ElementsAre(Picked(FileURL::folder("/a"))));
}

TEST_F(PortalFileDialogsTest, AnOldPortalMayAnswerElsewhere)
{
    const auto handle = QStringLiteral("/org/freedesktop/portal/desktop/request/7");
    const FakePortal portal(
        [&handle](const QDBusMessage& call) { return call.createReply(QVariant::fromValue(QDBusObjectPath(handle))); });
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(waitForCalls(portal, 1));
    letTimePass();
    portal.respond(handle, {0U, uris("file:///a")});
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(m_answers, ElementsAre(Picked(FileURL::folder("/a"))));
}

TEST_F(PortalFileDialogsTest, AUserWhoPicksNothingIsNotAskedAgain)
{
    EXPECT_EQ(pickedFor({1U, QVariantMap()}), Picked());
    // So do portals tell of a window that was closed.
    EXPECT_EQ(pickedFor({2U, QVariantMap()}), Picked());
    EXPECT_EQ(pickedFor({1U, uris("file:///a")}), Picked());
}

TEST_F(PortalFileDialogsTest, WhatIsNoAnswerPicksNothing)
{
    EXPECT_EQ(pickedForUris(QStringList{QStringLiteral("file:///a")}), Picked(FileURL::folder("/a")));
    EXPECT_EQ(pickedForUris(QStringLiteral("file:///a")), Picked());
    EXPECT_EQ(pickedForUris(7), Picked());
    EXPECT_EQ(pickedForUris(QStringList()), Picked());
    EXPECT_EQ(pickedForUris(QStringList{QStringLiteral("file:///a"), QStringLiteral("file:///b")}), Picked());
    for (const auto* const text :
        {"", "/a", "a", "http://example.org/a", "file://elsewhere/a", "file:///a%00b", "file:///a%", "file:a"}) {
        EXPECT_EQ(pickedForUris(QStringList{QString::fromLatin1(text)}), Picked()) << text;
    }
    EXPECT_EQ(pickedFor({0U, QVariantMap()}), Picked());
    EXPECT_EQ(pickedFor({QStringLiteral("0"), uris("file:///a")}), Picked());
    EXPECT_EQ(pickedFor({0U}), Picked());
    EXPECT_EQ(pickedFor({}), Picked());
}

TEST_F(PortalFileDialogsTest, NobodyElseAnswersForThePortal)
{
    const FakePortal portal;
    const FakeBusService other("org.example.Other", FakePortal::beginning());
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(waitForCalls(portal, 1));
    FakePortal::respondAs(other, FakePortal::handleOf(portal.calls().front()), {0U, uris("file:///other")});
    letTimePass();
    EXPECT_THAT(m_answers, IsEmpty());
    portal.respond(0, uris("file:///a"));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(m_answers, ElementsAre(Picked(FileURL::folder("/a"))));
}

TEST_F(PortalFileDialogsTest, OneDialogIsOpenAtATime)
{
    const FakePortal portal;
    const auto dialogs = this->dialogs();
    std::vector<Picked> others;
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    dialogs->chooseDestination(m_saveRequest, noting(others));
    EXPECT_THAT(others, IsEmpty());
    ASSERT_TRUE(waitForCalls(portal, 1));
    dialogs->chooseFolder(m_folderRequest, noting(others));
    EXPECT_TRUE(m_loop.runUntil([&others] { return others.size() == 2; }));
    EXPECT_THAT(others, ElementsAre(Picked(), Picked()));
    EXPECT_THAT(m_answers, IsEmpty());
    portal.respond(0, uris("file:///a"));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(portal.methods(), ElementsAre("OpenFile"));
    dialogs->chooseDestination(m_saveRequest, noting(others));
    EXPECT_TRUE(waitForCalls(portal, 2));
    EXPECT_THAT(portal.methods(), ElementsAre("OpenFile", "SaveFile"));
}

TEST_F(PortalFileDialogsTest, AUserMayTakeLong)
{
    m_patience = 100ms;
    const FakePortal portal;
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(waitForCalls(portal, 1));
    letTimePass(400ms);
    EXPECT_THAT(m_answers, IsEmpty());
    portal.respond(0, uris("file:///a"));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(m_answers, ElementsAre(Picked(FileURL::folder("/a"))));
}

TEST_F(PortalFileDialogsTest, WithoutAPortalTheOtherDialogsAreUsed)
{
    for (const bool hasBus : {true, false}) {
        m_bus = hasBus ? m_bus : withoutABus();
        m_own = {};
        m_answers.clear();
        const auto dialogs = this->dialogs();
        dialogs->chooseFolder(m_folderRequest, noting(m_answers));
        ASSERT_TRUE(m_loop.runUntil([this] { return m_own.asked.size() == 1; }));
        EXPECT_THAT(m_own.asked, ElementsAre("Pick a folder|Pick|/a\xFF b"));
        m_own.answer(FileURL::folder("/b"));
        ASSERT_TRUE(waitForAnswer());
        dialogs->chooseDestination(m_saveRequest, noting(m_answers));
        ASSERT_TRUE(m_loop.runUntil([this] { return m_own.asked.size() == 2; }));
        EXPECT_EQ(m_own.asked.back(), "Export|report.json|/home/a");
        m_own.answer(std::nullopt);
        ASSERT_TRUE(m_loop.runUntil([this] { return m_answers.size() == 2; }));
        EXPECT_THAT(m_answers, ElementsAre(Picked(FileURL::folder("/b")), Picked()));
    }
}

TEST_F(PortalFileDialogsTest, APortalWithoutDialogsIsNone)
{
    const FakePortal portal(FakePortal::refusing());
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    EXPECT_TRUE(m_loop.runUntil([this] { return m_own.asked.size() == 1; }));
    EXPECT_THAT(portal.methods(), ElementsAre("OpenFile"));
}

TEST_F(PortalFileDialogsTest, APortalThatAnswersInAnotherFormIsNone)
{
    const FakePortal portal([](const QDBusMessage& call) { return call.createReply(QStringLiteral("/a")); });
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    EXPECT_TRUE(m_loop.runUntil([this] { return m_own.asked.size() == 1; }));
    EXPECT_TRUE(waitForCalls(portal, 2));
    EXPECT_THAT(portal.methods(), ElementsAre("OpenFile", "Close"));
}

TEST_F(PortalFileDialogsTest, APortalThatDoesNotBeginIsNoneAndIsToldToLeaveIt)
{
    m_patience = 200ms;
    const FakePortal portal([](const QDBusMessage&) { return std::nullopt; });
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(m_loop.runUntil([this] { return m_own.asked.size() == 1; }));
    EXPECT_TRUE(waitForCalls(portal, 2));
    EXPECT_THAT(portal.methods(), ElementsAre("OpenFile", "Close"));
    // It shows a dialog after all.
    portal.respond(FakePortal::handleOf(portal.calls().front()), {0U, uris("file:///late")});
    letTimePass();
    EXPECT_THAT(m_answers, IsEmpty());
}

TEST_F(PortalFileDialogsTest, WithoutAnyDialogsNothingIsPicked)
{
    const auto dialogs = this->dialogs(false);
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(waitForAnswer());
    dialogs->chooseDestination(m_saveRequest, noting(m_answers));
    ASSERT_TRUE(m_loop.runUntil([this] { return m_answers.size() == 2; }));
    EXPECT_THAT(m_answers, ElementsAre(Picked(), Picked()));
}

TEST_F(PortalFileDialogsTest, APortalThatEndsTakesItsDialogAlong)
{
    auto portal = std::make_unique<FakePortal>();
    const auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(waitForCalls(*portal, 1));
    letTimePass();
    portal.reset();
    ASSERT_TRUE(waitForAnswer());
    EXPECT_THAT(m_answers, ElementsAre(Picked()));
    EXPECT_THAT(m_own.asked, IsEmpty());
}

TEST_F(PortalFileDialogsTest, ItsEndClosesTheDialog)
{
    const FakePortal portal;
    auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(waitForCalls(portal, 1));
    const auto handle = FakePortal::handleOf(portal.calls().front());
    // The connection ends with it.
    m_bus.reset();
    dialogs.reset();
    ASSERT_TRUE(waitForCalls(portal, 2));
    EXPECT_EQ(portal.calls().back().member(), QLatin1String("Close"));
    EXPECT_EQ(portal.calls().back().interface(), QLatin1String("org.freedesktop.portal.Request"));
    EXPECT_EQ(portal.calls().back().path(), handle);
    portal.respond(handle, {0U, uris("file:///a")});
    letTimePass();
    EXPECT_THAT(m_answers, IsEmpty());
}

TEST_F(PortalFileDialogsTest, NothingIsAnsweredAfterItsEndByTheOtherDialogs)
{
    auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest, noting(m_answers));
    ASSERT_TRUE(m_loop.runUntil([this] { return m_own.asked.size() == 1; }));
    m_own.answer(FileURL::folder("/b"));
    dialogs.reset();
    letTimePass();
    EXPECT_THAT(m_answers, IsEmpty());
}

TEST_F(PortalFileDialogsTest, AnAnswerMayAskAgainOrBeItsEnd)
{
    const FakePortal portal;
    auto dialogs = this->dialogs();
    dialogs->chooseFolder(m_folderRequest,
        [&](const Picked&) { dialogs->chooseDestination(m_saveRequest, [&](const Picked&) { dialogs.reset(); }); });
    m_bus.reset();
    ASSERT_TRUE(waitForCalls(portal, 1));
    portal.respond(1);
    ASSERT_TRUE(waitForCalls(portal, 2));
    portal.respond(1);
    EXPECT_TRUE(m_loop.runUntil([&dialogs] { return dialogs == nullptr; }));
    m_loop.handleEvents();
    EXPECT_THAT(portal.methods(), ElementsAre("OpenFile", "SaveFile"));
}

} // namespace
