#pragma once

#include "Tests/KarvelloCLI/RunningProgram.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLITests {

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
        ProgramSettings settings;
        settings.arguments = std::move(arguments);
        settings.environment = {
            {"HOME", m_tree.path("home")}, {"TERM", "xterm-256color"}, {"TZ", "UTC"}, {"LANG", "C.UTF-8"}};
        settings.workingDirectory = m_tree.root().path();
        return settings;
    }

    [[nodiscard]] ProgramResult run(std::vector<std::string> arguments) const
    {
        return runProgram(with(std::move(arguments)));
    }

    [[nodiscard]] std::string path(std::string_view relative) const { return m_tree.path(relative); }

    TestSupport::TemporaryTree m_tree{kHome};
};

/// Without colours, and with the line ends of a file.
inline std::string plain(std::string_view text)
{
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '\x1b') {
            index = text.find_first_of("mK", index);
        } else if (text[index] != '\r') {
            result += text[index];
        }
    }
    return result;
}

} // namespace KarvelloCLITests
