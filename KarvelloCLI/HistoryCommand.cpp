#include "KarvelloCLI/HistoryCommand.h"

#include "KarvelloCLI/AuditLog.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/HistoryTable.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/TextStyle.h"
#include "Platform/Services/HomeDirectory.h"

#include <span>

namespace KarvelloCLI {

ExitCode HistoryCommand::run(const HistoryOptions& options) const
{
    const CommonOptions& common = options.common;
    const auto output = outputOf(common, m_fileManager);
    if (!output) {
        return ExitCode::wrongUsage;
    }
    const AuditLogReading log =
        AuditLogReading::of(m_log, m_fileManager, options.limit.value_or(CleanerCore::CleanupAuditStore::defaultLimit));
    if (log.complaint) {
        printMessage(*log.complaint);
    }
    const auto style =
        TextStyle::of(common, output->descriptor(), Platform::homeDirectoryForCurrentUser(), m_environment);
    Delivery delivery = Delivery::written;
    if (common.format != OutputFormat::table) {
        delivery = deliverAuditExport(log.entries, common, *output, m_fileManager);
    } else if (!log.complaint || !log.entries.empty()) {
        delivery = deliver(historyTable(log.entries, style), *output, m_fileManager);
    }
    return log.complaint || delivery == Delivery::failed ? ExitCode::partial : ExitCode::done;
}

} // namespace KarvelloCLI
