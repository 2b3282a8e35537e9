#include "PlatformDesktop/SessionBus.h"
#include "Tests/DesktopSupport/PrivateBus.h"
#include "Tests/DesktopSupport/PrivateDisplay.h"
#include "Tests/PlatformDesktop/DesktopApplicationsFixture.h"

#include <QtCore/QElapsedTimer>

namespace {

using namespace PlatformDesktopTests;
using DesktopTestSupport::PrivateBus;
using DesktopTestSupport::PrivateDisplay;

constexpr auto kEditorName = "org.example.Text-Editor";

class QuitActionTest : public DesktopApplicationsTest {
protected:
    void SetUp() override
    {
        ASSERT_NE(m_bus.address(), "");
        m_settings.hasSessionBus = true;
    }

    std::unique_ptr<OwnedProgram> started(const std::string& behaviour) const
    {
        auto program = std::make_unique<OwnedProgram>(KARVELLO_TEST_BUS_APPLICATION,
            std::vector<std::string>{kEditorName, behaviour},
            std::map<std::string, std::string>{{"DBUS_SESSION_BUS_ADDRESS", m_bus.address()}});
        EXPECT_EQ(numberIn(program->line()), program->process());
        return program;
    }

    void expectNotActivated(const std::string& behaviour)
    {
        const auto program = started(behaviour);
        EXPECT_FALSE(requestQuit(applicationOf(*program, kEditorName))) << behaviour;
        EXPECT_TRUE(program->staysQuiet()) << behaviour;
    }

    const PrivateBus& m_bus = PrivateBus::ofThisProcess();
};

TEST_F(QuitActionTest, TheActionOfTheApplicationIsCalled)
{
    const auto program = started("quits");
    EXPECT_TRUE(LinuxDesktopApplications(m_settings).canRequestQuit());
    EXPECT_TRUE(requestQuit(applicationOf(*program, kEditorName)));
    EXPECT_TRUE(program->says("quit"));
    EXPECT_TRUE(program->ends());
}

TEST_F(QuitActionTest, AnApplicationThatAsksItsUserFirstHasBeenAsked)
{
    const auto program = started("asks");
    EXPECT_TRUE(requestQuit(applicationOf(*program, kEditorName)));
    EXPECT_TRUE(program->says("quit"));
    EXPECT_TRUE(program->staysQuiet());
    program->tell("save");
    EXPECT_TRUE(program->says("saved"));
    EXPECT_TRUE(program->ends());
}

TEST_F(QuitActionTest, AnActionThatIsOffOrWantsAParameterIsNotCalled)
{
    expectNotActivated("disabled");
    expectNotActivated("parameter");
    expectNotActivated("none");
}

TEST_F(QuitActionTest, OnlyAnActionThatCanBeCalledAsItIsCountsAsOffered)
{
    for (const auto& [behaviour, isOffered] :
        std::map<std::string, bool>{{"quits", true}, {"disabled", false}, {"parameter", false}, {"none", false}}) {
        const auto program = started(behaviour);
        const PlatformDesktop::SessionBus bus;
        const auto owner = bus.ownerOf(kEditorName);
        ASSERT_TRUE(owner);
        EXPECT_EQ(owner->process, program->process());
        EXPECT_EQ(bus.offersQuit(*owner, kEditorName), isOffered) << behaviour;
    }
}

TEST_F(QuitActionTest, AnApplicationThatDoesNotAnswerIsGivenUpInAFewSeconds)
{
    QElapsedTimer time;
    time.start();
    expectNotActivated("silent");
    EXPECT_LT(time.elapsed(), 8000);
}

TEST_F(QuitActionTest, TheNameMustBelongToAProcessOfTheApplication)
{
    const auto program = started("quits");
    OwnedProgram other("sleep", {"1000"});
    EXPECT_FALSE(requestQuit(applicationOf(other, kEditorName)));
    EXPECT_FALSE(requestQuit(applicationOf(*program, "org.example.Absent")));
    EXPECT_FALSE(requestQuit(applicationOf(*program, "no name\n")));
    auto identity = identityOf(program->process());
    --identity.startTicks;
    EXPECT_FALSE(requestQuit(applicationOf({identity}, kEditorName)));
    EXPECT_TRUE(program->staysQuiet());
    EXPECT_TRUE(requestQuit(applicationOf({identityOf(other.process()), identityOf(program->process())}, kEditorName)));
    EXPECT_TRUE(program->says("quit"));
}

TEST_F(QuitActionTest, WithoutTheActionTheWindowsAreAsked)
{
    const PrivateDisplay display(PrivateDisplay::Manager::openbox);
    m_settings.display = display.name();
    const auto program = started("disabled");
    OwnedProgram window(KARVELLO_TEST_WINDOW, {"closes"}, {{"DISPLAY", display.name()}});
    const auto shown = numberIn(window.line());
    EXPECT_TRUE(requestQuit(applicationOf({identityOf(program->process()), identityOf(shown)}, kEditorName)));
    EXPECT_TRUE(window.says("asked"));
    EXPECT_TRUE(program->staysQuiet());
}

TEST_F(QuitActionTest, WithTheActionTheWindowsAreNotAsked)
{
    const PrivateDisplay display(PrivateDisplay::Manager::openbox);
    m_settings.display = display.name();
    const auto program = started("quits");
    OwnedProgram window(KARVELLO_TEST_WINDOW, {"closes"}, {{"DISPLAY", display.name()}});
    const auto shown = numberIn(window.line());
    EXPECT_TRUE(requestQuit(applicationOf({identityOf(program->process()), identityOf(shown)}, kEditorName)));
    EXPECT_TRUE(program->says("quit"));
    EXPECT_TRUE(window.staysQuiet());
}

TEST_F(QuitActionTest, ASessionWithoutABusOffersNoAction)
{
    const auto program = started("quits");
    m_settings.hasSessionBus = false;
    EXPECT_FALSE(LinuxDesktopApplications(m_settings).canRequestQuit());
    EXPECT_FALSE(requestQuit(applicationOf(*program, kEditorName)));
    EXPECT_TRUE(program->staysQuiet());
}

using Variables = std::map<std::string, std::string, std::less<>>;

LinuxDesktopApplications::Settings settingsOf(const Variables& variables)
{
    return LinuxDesktopApplications::Settings::current(Platform::Environment(variables));
}

TEST(LinuxDesktopApplicationsSettings, ComeFromTheSession)
{
    EXPECT_EQ(settingsOf({}).display, "");
    EXPECT_NE(settingsOf({}).hostName, "");
    EXPECT_EQ(settingsOf({{"DISPLAY", ":7"}}).display, ":7");
}

TEST(LinuxDesktopApplicationsSettings, ABusIsTheOneThatIsNamedOrTheUsersOwn)
{
    const TestSupport::TemporaryTree tree("without/\nwith/bus\n");
    EXPECT_FALSE(settingsOf({}).hasSessionBus);
    EXPECT_TRUE(settingsOf({{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/a"}}).hasSessionBus);
    EXPECT_FALSE(settingsOf({{"XDG_RUNTIME_DIR", tree.path("without")}}).hasSessionBus);
    EXPECT_TRUE(settingsOf({{"XDG_RUNTIME_DIR", tree.path("with")}}).hasSessionBus);
}

} // namespace
