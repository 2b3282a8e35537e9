#pragma once

#include "Tests/KarvelloCLI/RunningProgram.h"
#include "Tests/KarvelloCLI/ScanProgramFixture.h"
#include "Tests/Support/FileContents.h"
#include "Tests/Support/TemporaryTree.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLITests {

using TestSupport::contentsOf;

/// The built program, cleaning a home of its own: its Trash, its log and its environment lie in a temporary folder.
class CleanProgram : public testing::Test {
protected:
    static constexpr std::string_view kHome = R"(
home/
    .cache/thumbnails/large/
        picture.png size=16K
        second.png size=8K
    Downloads/
        big.iso size=96K
        folder/
            inner size=4K
            link -> inner
            deeper/
                leaf text="leaf"
        "new\nline \xff" text="hostile"
        -rf text="dash"
)";

    /// The settings of a run on this test's home.
    [[nodiscard]] ProgramSettings with(std::vector<std::string> arguments) const;
    [[nodiscard]] ProgramResult run(std::vector<std::string> arguments) const;
    /// A run with a person at it, who answers the question.
    [[nodiscard]] ProgramResult runAnswering(std::vector<std::string> arguments, std::string_view keys) const;

    [[nodiscard]] std::string path(std::string_view relative) const { return m_tree.path(relative); }
    [[nodiscard]] bool exists(std::string_view relative) const;
    /// Names in the Trash of the home, and those that its records speak for.
    [[nodiscard]] std::vector<std::string> trashed() const;
    [[nodiscard]] std::vector<std::string> recorded() const;
    /// The log as a program sees it, from "history --format json".
    [[nodiscard]] nlohmann::json history() const;
    [[nodiscard]] nlohmann::json candidates(std::vector<std::string> scanArguments) const;
    [[nodiscard]] std::string logPath() const { return path("home/.local/share/Karvello/cleanup-audit-log.json"); }

    /// What stands at each path below `relative`: kind, permissions, time of change, bytes. Not what the program keeps.
    [[nodiscard]] std::map<std::string, std::string> snapshot(std::string_view relative = "home") const;

    TestSupport::TemporaryTree m_tree{kHome};
};

void writeFile(const std::string& path, std::string_view bytes);

} // namespace KarvelloCLITests
