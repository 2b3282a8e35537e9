#include "KarvelloCLI/AppsCommand.h"

#include "Platform/Files/PosixFileManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

using namespace KarvelloCLI;

namespace {

/// Gives one answer to every question.
class FakeApplications final : public Platform::RunningApplications {
public:
    explicit FakeApplications(Listing listing)
        : m_listing(std::move(listing))
    {
    }
    [[nodiscard]] Listing applications() const override { return m_listing; }
    [[nodiscard]] Listing measuredApplications(const std::stop_token&) const override { return m_listing; }
    [[nodiscard]] std::optional<Platform::RunningApplication> application(std::int32_t) const override { return {}; }

private:
    Listing m_listing;
};

struct Run {
    ExitCode code = ExitCode::done;
    std::string output;
    std::string messages;
};

Run run(FakeApplications::Listing listing)
{
    const Platform::PosixFileManager fileManager;
    const Platform::Environment environment;
    const FakeApplications applications(std::move(listing));
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Run run;
    run.code = AppsCommand(fileManager, applications, environment).run({});
    run.output = testing::internal::GetCapturedStdout();
    run.messages = testing::internal::GetCapturedStderr();
    return run;
}

} // namespace

TEST(AppsCommand, AnInterruptionShowsNothing)
{
    const auto result = run(std::unexpected(ECANCELED));
    EXPECT_EQ(result.code, ExitCode::interrupted);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.messages, testing::HasSubstr("Interrupted."));
}

TEST(AppsCommand, ProgramsThatCannotBeReadAreNotSaidToBeNone)
{
    const auto result = run(std::unexpected(ENOENT));
    EXPECT_EQ(result.code, ExitCode::partial);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(
        result.messages, testing::HasSubstr("The running programs could not be read: No such file or directory."));
}

TEST(AppsCommand, AListIsShown)
{
    const auto result = run(std::vector<Platform::RunningApplication>{
        {.displayName = "Editor", .processIdentifier = 1, .isUserVisible = true}});
    EXPECT_EQ(result.code, ExitCode::done);
    EXPECT_THAT(result.output, testing::HasSubstr("Editor  not from here\n"));
    EXPECT_EQ(result.messages, "");
}
