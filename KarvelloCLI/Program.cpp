#include "KarvelloCLI/Program.h"

#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "KarvelloCLI/AppsCommand.h"
#include "KarvelloCLI/CleanCommand.h"
#include "KarvelloCLI/CommandLine.h"
#include "KarvelloCLI/HistoryCommand.h"
#include "KarvelloCLI/InsightsCommand.h"
#include "KarvelloCLI/LanguageChoice.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/OutputFile.h"
#include "KarvelloCLI/RestoreCommand.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/ScanCommand.h"
#include "KarvelloCLI/StatusCommand.h"
#include "Platform/Files/PosixFileManager.h"
#include "Platform/Linux/LinuxRunningApplications.h"
#include "Platform/Linux/LinuxTrash.h"
#include "Platform/Services/UserDirectories.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>
#include <variant>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanupAuditStore;

/// A program may be started with its standard descriptors closed. The first file that it opens would then get one of
/// their numbers, and messages would go into it. What is put there instead cannot be written to, which writers report.
void occupyStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0 && errno == EBADF && open("/dev/null", O_RDONLY) < 0) {
            return;
        }
    }
}

ExitCode printInformation(const Information& information)
{
    if (const int error = writeWholly(STDOUT_FILENO, information.text); error != 0) {
        printMessage(say(
            "{} could not be written: {}.", say("standard output"), sayReason(std::generic_category().message(error))));
        return ExitCode::partial;
    }
    return ExitCode::done;
}

} // namespace

ExitCode runProgram(std::span<const std::string> arguments)
{
    occupyStandardDescriptors();
    // A reader that has gone away is an error of a write, to be told in words.
    std::signal(SIGPIPE, SIG_IGN);

    const Platform::Environment environment = Platform::Environment::current();
    speak(languageAskedFor(arguments).value_or(languageOf(environment)));
    const auto command = parseCommandLine(arguments);
    if (!command) {
        printMessage(command.error().message);
        printMessage(command.error().hint);
        return ExitCode::wrongUsage;
    }
    if (const auto* const information = std::get_if<Information>(&*command)) {
        return printInformation(*information);
    }
    const Platform::PosixFileManager fileManager;
    if (const auto* const options = std::get_if<ScanOptions>(&*command)) {
        return ScanCommand(fileManager, environment).run(*options);
    }
    if (const auto* const options = std::get_if<InsightsOptions>(&*command)) {
        return InsightsCommand(fileManager, environment).run(*options);
    }
    if (const auto* const options = std::get_if<StatusOptions>(&*command)) {
        return StatusCommand(fileManager, environment).run(*options);
    }
    if (const auto* const options = std::get_if<AppsOptions>(&*command)) {
        const Platform::LinuxRunningApplications applications(
            Platform::LinuxRunningApplications::Settings::current(environment),
            Platform::SystemStatistics::ofThisMachine());
        return AppsCommand(fileManager, applications, environment).run(*options);
    }
    // Trash and log are those of the user who runs this, whatever home is cleaned.
    const CleanupAuditStore log(fileManager, CleanupAuditStore::defaultFileURL(environment));
    if (const auto* const options = std::get_if<HistoryOptions>(&*command)) {
        return HistoryCommand(fileManager, log, environment).run(*options);
    }
    Platform::LinuxTrash trash(fileManager, Platform::dataDirectoryForCurrentUser(environment));
    if (const auto* const options = std::get_if<CleanOptions>(&*command)) {
        return CleanCommand(fileManager, trash, log, environment).run(*options);
    }
    return RestoreCommand(fileManager, trash, log, environment).run(std::get<RestoreOptions>(*command));
}

} // namespace KarvelloCLI
