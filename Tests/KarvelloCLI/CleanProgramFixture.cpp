#include "Tests/KarvelloCLI/CleanProgramFixture.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace KarvelloCLITests {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> namesIn(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        names.push_back(entry.path().filename().native());
    }
    std::ranges::sort(names);
    return names;
}

} // namespace

void writeFile(const std::string& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    EXPECT_TRUE(file.good()) << path;
}

ProgramSettings CleanProgram::with(std::vector<std::string> arguments) const
{
    ProgramSettings settings;
    settings.arguments = std::move(arguments);
    settings.environment = {
        {"HOME", path("home")}, {"TERM", "xterm-256color"}, {"TZ", "UTC"}, {"LANG", "C.UTF-8"}, {"NO_COLOR", "1"}};
    settings.workingDirectory = m_tree.root().path();
    return settings;
}

ProgramResult CleanProgram::run(std::vector<std::string> arguments) const
{
    return runProgram(with(std::move(arguments)));
}

ProgramResult CleanProgram::runAnswering(std::vector<std::string> arguments, std::string_view keys) const
{
    ProgramSettings settings = with(std::move(arguments));
    settings.isAttended = true;
    RunningProgram program(settings);
    EXPECT_TRUE(program.hasSaid("? [y/N] "));
    program.type(keys);
    return program.wait();
}

bool CleanProgram::exists(std::string_view relative) const
{
    struct stat status{};
    return lstat(path(relative).c_str(), &status) == 0;
}

std::vector<std::string> CleanProgram::trashed() const
{
    return namesIn(path("home/.local/share/Trash/files"));
}

std::vector<std::string> CleanProgram::recorded() const
{
    constexpr std::string_view suffix = ".trashinfo";
    std::vector<std::string> names = namesIn(path("home/.local/share/Trash/info"));
    for (std::string& name : names) {
        EXPECT_TRUE(name.ends_with(suffix)) << name;
        name.resize(name.size() - std::min(name.size(), suffix.size()));
    }
    std::ranges::sort(names);
    return names;
}

nlohmann::json CleanProgram::history() const
{
    const ProgramResult result = run({"history", "--format", "json"});
    EXPECT_EQ(result.status, 0) << result.messages;
    return nlohmann::json::parse(result.output);
}

nlohmann::json CleanProgram::candidates(std::vector<std::string> scanArguments) const
{
    scanArguments.insert(scanArguments.begin(), "scan");
    scanArguments.insert(scanArguments.end(), {"--format", "json"});
    return nlohmann::json::parse(run(std::move(scanArguments)).output).at("candidates");
}

std::map<std::string, std::string> CleanProgram::snapshot(std::string_view relative) const
{
    std::map<std::string, std::string> found;
    for (auto entry = fs::recursive_directory_iterator(path(relative)); entry != fs::recursive_directory_iterator();
        ++entry) {
        const std::string each = entry->path().native();
        if (each == path("home/.local")) {
            entry.disable_recursion_pending();
            continue;
        }
        struct stat status{};
        EXPECT_EQ(lstat(each.c_str(), &status), 0);
        const std::string bytes = S_ISREG(status.st_mode) ? contentsOf(each)
            : S_ISLNK(status.st_mode)                     ? fs::read_symlink(each).native()
                                                          : std::string();
        // A folder's own time changes with its entries.
        const auto time = S_ISDIR(status.st_mode) ? 0 : status.st_mtim.tv_sec;
        found[each] = fmt::format("{:o} {} {}", status.st_mode, time, bytes);
    }
    return found;
}

} // namespace KarvelloCLITests
