#include "Tests/DesktopSupport/PrivateDisplay.h"
#include "Tests/PlatformDesktop/DesktopApplicationsFixture.h"

#include <chrono>
#include <filesystem>
#include <thread>

namespace {

using namespace PlatformDesktopTests;
using DesktopTestSupport::PrivateDisplay;
using namespace std::chrono_literals;

constexpr auto kWindow = KARVELLO_TEST_WINDOW;

class CloseWindowTest : public DesktopApplicationsTest {
protected:
    void SetUp() override { startDisplay(PrivateDisplay::Manager::openbox); }

    void startDisplay(PrivateDisplay::Manager manager, const std::vector<std::string>& options = {})
    {
        m_display.reset();
        m_display = std::make_unique<PrivateDisplay>(manager, options);
        m_settings.display = m_display->name();
        ASSERT_NE(m_settings.display, "");
    }

    std::map<std::string, std::string> environment() const { return {{"DISPLAY", m_settings.display}}; }

    /// Started, and its window is there.
    std::unique_ptr<OwnedProgram> shown(
        std::vector<std::string> words, const std::string& program = kWindow, std::int32_t* process = nullptr) const
    {
        auto started = std::make_unique<OwnedProgram>(program, words, environment());
        const auto number = numberIn(started->line());
        if (process != nullptr) {
            *process = number;
        } else {
            EXPECT_EQ(number, started->process());
        }
        return started;
    }

    std::unique_ptr<PrivateDisplay> m_display;
};

TEST_F(CloseWindowTest, AWindowIsAskedAndItsProgramEnds)
{
    const auto program = shown({"closes"});
    EXPECT_TRUE(LinuxDesktopApplications(m_settings).canRequestQuit());
    EXPECT_TRUE(requestQuit(applicationOf(*program)));
    EXPECT_TRUE(program->says("asked"));
    EXPECT_TRUE(program->ends());
}

TEST_F(CloseWindowTest, AProgramThatAsksToSaveEndsOnlyWhenItsUserHasAnswered)
{
    const auto program = shown({"asks"});
    const auto application = applicationOf(*program);
    EXPECT_TRUE(requestQuit(application));
    EXPECT_TRUE(program->says("asked"));
    EXPECT_TRUE(program->staysQuiet());
    program->tell("cancel");
    EXPECT_TRUE(program->says("stays"));
    EXPECT_TRUE(requestQuit(application));
    EXPECT_TRUE(program->says("asked"));
    program->tell("save");
    EXPECT_TRUE(program->ends());
}

TEST_F(CloseWindowTest, AProgramThatRefusesRunsOn)
{
    const auto program = shown({"refuses"});
    EXPECT_TRUE(requestQuit(applicationOf(*program)));
    EXPECT_TRUE(program->says("asked"));
    EXPECT_TRUE(program->staysQuiet());
}

TEST_F(CloseWindowTest, EachWindowOfTheApplicationIsAsked)
{
    const auto program = shown({"pair"});
    EXPECT_TRUE(requestQuit(applicationOf(*program)));
    EXPECT_TRUE(program->says("asked"));
    EXPECT_TRUE(program->says("asked"));
    EXPECT_TRUE(program->ends());
}

TEST_F(CloseWindowTest, EachProcessOfTheSameProgramIsAsked)
{
    const auto first = shown({"closes"});
    const auto second = shown({"closes"});
    EXPECT_TRUE(requestQuit(applicationOf({identityOf(first->process()), identityOf(second->process())})));
    EXPECT_TRUE(first->says("asked"));
    EXPECT_TRUE(second->says("asked"));
}

TEST_F(CloseWindowTest, AWindowThatTakesNoRequestIsLeftAlone)
{
    const auto program = shown({"ignorant"});
    EXPECT_FALSE(requestQuit(applicationOf(*program))) << "the manager would end its program";
    EXPECT_TRUE(program->staysQuiet());
}

TEST_F(CloseWindowTest, AnotherProgramIsNotAsked)
{
    const auto other = shown({"closes"});
    const auto program = shown({"closes"});
    EXPECT_TRUE(requestQuit(applicationOf(*program)));
    EXPECT_TRUE(program->says("asked"));
    EXPECT_TRUE(other->staysQuiet());
}

TEST_F(CloseWindowTest, AProgramWithoutAWindowIsNotAsked)
{
    const auto other = shown({"closes"});
    OwnedProgram program("sleep", {"1000"});
    EXPECT_FALSE(requestQuit(applicationOf(program)));
    EXPECT_TRUE(other->staysQuiet());
}

TEST_F(CloseWindowTest, AWindowOfAnotherMachineIsNotAsked)
{
    const auto program = shown({"closes", "elsewhere"});
    EXPECT_FALSE(requestQuit(applicationOf(*program)));
    EXPECT_TRUE(program->staysQuiet());
}

TEST_F(CloseWindowTest, AProcessNumberThatWasGivenOutAgainIsNotAsked)
{
    const auto program = shown({"closes"});
    auto identity = identityOf(program->process());
    --identity.startTicks;
    EXPECT_FALSE(requestQuit(applicationOf({identity})));
    EXPECT_TRUE(program->staysQuiet());
}

TEST_F(CloseWindowTest, WhereTheFirstProcessIsGoneNoneIsAsked)
{
    const auto program = shown({"closes"});
    auto gone = identityOf(program->process());
    --gone.startTicks;
    EXPECT_FALSE(requestQuit(applicationOf({gone, identityOf(program->process())})));
    EXPECT_FALSE(requestQuit(RunningApplication{.processIdentifier = program->process()}));
    EXPECT_TRUE(program->staysQuiet());
}

TEST_F(CloseWindowTest, TheServerTellsWhoseAWindowIsAndNotTheWindow)
{
    const auto victim = shown({"closes"});
    const auto liar = shown({"closes", m_settings.hostName, std::to_string(victim->process())});
    EXPECT_TRUE(requestQuit(applicationOf(*victim)));
    EXPECT_TRUE(victim->says("asked"));
    EXPECT_TRUE(liar->staysQuiet());
}

TEST_F(CloseWindowTest, AServerThatDoesNotTellLeavesTheWordOfTheWindow)
{
    startDisplay(PrivateDisplay::Manager::openbox, {"-extension", "X-Resource"});
    OwnedProgram named("sleep", {"1000"});
    const auto program = shown({"closes", m_settings.hostName, std::to_string(named.process())});
    EXPECT_FALSE(requestQuit(applicationOf(*program)));
    EXPECT_TRUE(program->staysQuiet());
    EXPECT_TRUE(requestQuit(applicationOf(named)));
    EXPECT_TRUE(program->says("asked"));
}

TEST_F(CloseWindowTest, TheWindowsOfWhatALauncherStartedAreTheApplications)
{
    std::int32_t started = 0;
    const auto launcher = shown({"-c", std::string(kWindow) + " closes; exit 0"}, "sh", &started);
    ASSERT_NE(started, launcher->process());
    EXPECT_TRUE(requestQuit(applicationOf({identityOf(launcher->process()), identityOf(started)})));
    EXPECT_TRUE(launcher->says("asked"));
    EXPECT_TRUE(launcher->ends());
}

TEST_F(CloseWindowTest, WindowsOfOtherProgramsThatAnApplicationStartedAreNotAsked)
{
    const TestSupport::TemporaryTree tree("bin/\n");
    const auto copy = tree.path("bin/another");
    std::filesystem::copy_file(kWindow, copy);
    const auto terminal = shown({"closes"});
    const auto child = shown({"closes"}, copy);
    EXPECT_TRUE(requestQuit(applicationOf({identityOf(terminal->process()), identityOf(child->process())})));
    EXPECT_TRUE(terminal->says("asked"));
    EXPECT_TRUE(child->staysQuiet());
}

TEST_F(CloseWindowTest, WithoutAManagerThatClosesWindowsNobodyCanBeAsked)
{
    startDisplay(PrivateDisplay::Manager::none);
    EXPECT_FALSE(LinuxDesktopApplications(m_settings).canRequestQuit());
    EXPECT_EQ(LinuxDesktopApplications(m_settings).frontmostProcess(), std::nullopt);
    OwnedProgram program("sleep", {"1000"});
    EXPECT_FALSE(requestQuit(applicationOf(program)));
}

TEST_F(CloseWindowTest, WithoutADisplayNobodyCanBeAsked)
{
    for (const auto* const display : {"", ":nowhere"}) {
        m_settings.display = display;
        EXPECT_FALSE(LinuxDesktopApplications(m_settings).canRequestQuit());
        OwnedProgram program("sleep", {"1000"});
        EXPECT_FALSE(requestQuit(applicationOf(program)));
    }
}

TEST_F(CloseWindowTest, TheProcessWithTheFocusIsInFront)
{
    const LinuxDesktopApplications desktop(m_settings);
    EXPECT_EQ(desktop.frontmostProcess(), std::nullopt);
    const auto program = shown({"closes"});
    // The manager gives it the focus soon after it has listed it.
    for (int look = 0; look < 500 && !desktop.frontmostProcess(); ++look) {
        std::this_thread::sleep_for(10ms);
    }
    EXPECT_EQ(desktop.frontmostProcess(), program->process());
}

} // namespace
