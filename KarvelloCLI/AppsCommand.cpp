#include "KarvelloCLI/AppsCommand.h"

#include "KarvelloCLI/AppsTexts.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/Say.h"
#include "Platform/Services/HomeDirectory.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <expected>
#include <optional>
#include <string>
#include <system_error>

namespace KarvelloCLI {

namespace {

std::expected<std::string, Platform::JSONError> textOf(
    std::span<const AppsRow> rows, Platform::Date now, const CommonOptions& options, const TextStyle& style)
{
    switch (options.format) {
    case OutputFormat::json:
        return appsJSON(rows, now, exportPrivacy(options));
    case OutputFormat::csv:
        return appsCSV(rows, exportPrivacy(options));
    case OutputFormat::table:
        break;
    }
    return appsTable(rows, now, options.isRedacted, style);
}

} // namespace

ExitCode AppsCommand::run(const AppsOptions& options) const
{
    const CommonOptions& common = options.common;
    const auto output = outputOf(common, m_fileManager);
    if (!output) {
        return ExitCode::wrongUsage;
    }
    std::optional<Interruption> interruption(std::in_place);
    const auto applications = m_applications.measuredApplications(interruption->token());
    if (!applications) {
        if (applications.error() == ECANCELED) {
            printMessage(say("Interrupted."));
            return ExitCode::interrupted;
        }
        printMessage(say("The running programs could not be read: {}.",
            sayReason(std::generic_category().message(applications.error()))));
        return ExitCode::partial;
    }
    interruption.reset();
    const auto rows = appsRows(*applications, getpid());
    const auto style =
        TextStyle::of(common, output->descriptor(), Platform::homeDirectoryForCurrentUser(), m_environment);
    const auto text = textOf(rows, Platform::Date::now(), common, style);
    if (!text) {
        printMessage(say("The list could not be written: {}.", text.error().localizedDescription()));
        return ExitCode::partial;
    }
    return deliver(*text, *output, m_fileManager) == Delivery::written ? ExitCode::done : ExitCode::partial;
}

} // namespace KarvelloCLI
