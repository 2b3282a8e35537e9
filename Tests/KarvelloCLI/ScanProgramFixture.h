#pragma once

#include "Tests/KarvelloCLI/RunningProgram.h"
#include "Tests/KarvelloCLI/TextLines.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLITests {

/// The settings of a run on the home in `tree`, from the top of it.
inline ProgramSettings settingsIn(const TestSupport::TemporaryTree& tree, std::vector<std::string> arguments)
{
    ProgramSettings settings;
    settings.arguments = std::move(arguments);
    settings.environment = {
        {"HOME", tree.path("home")}, {"TERM", "xterm-256color"}, {"TZ", "UTC"}, {"LANG", "C.UTF-8"}};
    settings.workingDirectory = tree.root().path();
    return settings;
}

/// The built program as a user meets it: in a process of its own, on a home of its own.
class ScanProgram : public testing::Test {
protected:
    static constexpr std::string_view kHome = R"(
home/
    .cache/
        pip/
            http-v2/
                blob size=64K
            selfcheck/
                fresh size=1K age=1m
            nothing/
        thumbnails/large/
            picture.png size=16K
    .ssh/
        id size=1K
    Downloads/
        big.iso size=96K
        "new\nline" size=8K
        .part size=4K
        link -> big.iso
elsewhere/
    a size=4K
    b size=8K
)";

    /// The settings of a run on this test's home.
    [[nodiscard]] ProgramSettings with(std::vector<std::string> arguments) const
    {
        return settingsIn(m_tree, std::move(arguments));
    }

    [[nodiscard]] ProgramResult run(std::vector<std::string> arguments) const
    {
        return runProgram(with(std::move(arguments)));
    }

    [[nodiscard]] std::string path(std::string_view relative) const { return m_tree.path(relative); }

    TestSupport::TemporaryTree m_tree{kHome};
};

} // namespace KarvelloCLITests
