#pragma once

#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/Options.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

namespace KarvelloCLI {

/// The command "history": shows or exports the log of cleans and restores. A damaged log is told of and left as it is.
class HistoryCommand {
public:
    /// All must outlive the command.
    HistoryCommand(const Platform::FileManager& fileManager, const CleanerCore::CleanupAuditStore& log,
        const Platform::Environment& environment)
        : m_fileManager(fileManager)
        , m_log(log)
        , m_environment(environment)
    {
    }

    [[nodiscard]] ExitCode run(const HistoryOptions& options) const;

private:
    const Platform::FileManager& m_fileManager;
    const CleanerCore::CleanupAuditStore& m_log;
    const Platform::Environment& m_environment;
};

} // namespace KarvelloCLI
