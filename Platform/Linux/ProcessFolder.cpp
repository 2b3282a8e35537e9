#include "Platform/Linux/ProcessFolder.h"

#include "Platform/Files/OpenFolder.h"
#include "Platform/Linux/KernelText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

/// The fields behind the name, by their numbers in proc_pid_stat(5).
enum class Field : std::size_t { state = 3, parent = 4, userTime = 14, systemTime = 15, start = 22, pages = 24 };

constexpr auto kFirstField = static_cast<std::size_t>(Field::state);
constexpr auto kLastField = static_cast<std::size_t>(Field::pages);

} // namespace

std::optional<ProcessState> ProcessState::parse(std::string_view stat)
{
    // The name may hold anything, closing brackets too.
    const auto open = stat.find('(');
    const auto close = stat.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
        return std::nullopt;
    }
    const auto process = KernelText::number<std::int32_t>(KernelText::stripped(stat.substr(0, open)));
    std::array<std::string_view, kLastField + 1> fields{};
    auto rest = KernelText::stripped(stat.substr(close + 1));
    for (auto field = kFirstField; field <= kLastField; ++field) {
        const auto word = KernelText::takeWord(rest);
        if (!word) {
            return std::nullopt;
        }
        fields[field] = *word;
    }
    const auto text = [&fields](Field field) { return fields[static_cast<std::size_t>(field)]; };
    const auto number = [&text](Field field) { return KernelText::number<std::uint64_t>(text(field)); };
    const auto parentProcess = KernelText::number<std::int32_t>(text(Field::parent));
    const auto user = number(Field::userTime);
    const auto system = number(Field::systemTime);
    const auto startTime = number(Field::start);
    const auto resident = number(Field::pages);
    if (!process || !parentProcess || !user || !system || !startTime || !resident) {
        return std::nullopt;
    }
    return ProcessState{
        .processIdentifier = *process,
        .parent = *parentProcess,
        .isTerminated = text(Field::state) == "Z" || text(Field::state) == "X",
        .cpuTicks = *user + *system,
        .startTicks = *startTime,
        .residentPages = *resident,
        .name = std::string(stat.substr(open + 1, close - open - 1)),
    };
}

std::optional<ProcessFolder> ProcessFolder::open(const std::string& procRoot, std::int32_t process)
{
    const auto path = procRoot + "/" + std::to_string(process);
    FileDescriptor folder(::open(path.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat found{};
    if (!folder.isOpen() || fstat(folder.get(), &found) != 0) {
        return std::nullopt;
    }
    return ProcessFolder(std::move(folder), found.st_uid);
}

std::expected<std::vector<std::int32_t>, int> ProcessFolder::processes(const std::string& procRoot)
{
    if (const auto folder = openFolder(procRoot.c_str()); !folder) {
        return std::unexpected(folder.error());
    }
    std::vector<std::int32_t> processes;
    for (const auto& name : KernelText::namesIn(procRoot)) {
        if (const auto process = KernelText::number<std::int32_t>(name); process && *process > 0) {
            processes.push_back(*process);
        }
    }
    // A machine without any process is one whose processes cannot be seen.
    return processes.empty() ? std::expected<std::vector<std::int32_t>, int>(std::unexpected(ENOENT)) : processes;
}

std::optional<ProcessState> ProcessFolder::state() const
{
    const auto stat = read("stat");
    return stat ? ProcessState::parse(*stat) : std::nullopt;
}

std::optional<std::string> ProcessFolder::read(const char* name) const
{
    return KernelText::readIn(m_folder.get(), name);
}

std::optional<std::string> ProcessFolder::environmentValue(std::string_view name) const
{
    const auto variables = read("environ");
    std::string_view rest = variables ? std::string_view(*variables) : std::string_view();
    while (!rest.empty()) {
        const auto end = std::min(rest.find('\0'), rest.size());
        const auto variable = rest.substr(0, end);
        if (variable.starts_with(name) && variable.substr(name.size()).starts_with('=')) {
            return std::string(variable.substr(name.size() + 1));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return std::nullopt;
}

std::optional<std::string> ProcessFolder::program() const
{
    std::array<char, PATH_MAX> target{};
    const auto length = readlinkat(m_folder.get(), "exe", target.data(), target.size());
    if (length <= 0) {
        return std::nullopt;
    }
    constexpr std::string_view replaced = " (deleted)";
    std::string_view path(target.data(), static_cast<std::size_t>(length));
    path.remove_suffix(path.ends_with(replaced) ? replaced.size() : 0);
    path.remove_prefix(path.rfind('/') + 1);
    return path.empty() ? std::nullopt : std::optional<std::string>(path);
}

std::optional<std::uint64_t> ProcessFolder::proportionalMemory() const
{
    constexpr std::uint64_t kibibyte = 1024;
    const auto rollup = read("smaps_rollup");
    const auto kibibytes = rollup ? KernelText::numberAfter("Pss:", *rollup) : std::nullopt;
    return kibibytes && *kibibytes <= UINT64_MAX / kibibyte ? std::optional(*kibibytes * kibibyte) : std::nullopt;
}

} // namespace Platform
