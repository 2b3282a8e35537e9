#pragma once

#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "CleanerCore/Cleaning/CleanResult.h"
#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/Options.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Files/Trash.h"
#include "Platform/Services/Environment.h"

namespace KarvelloCLI {

/// The command "clean": scans, shows what would move, asks, moves it to the Trash, tells what became of each item and
/// logs it. Handles the signals that `Interruption` names while it works: a clean that was interrupted is told and logged.
class CleanCommand {
public:
    /// All must outlive the command.
    CleanCommand(const Platform::FileManager& fileManager, Platform::Trash& trash,
        const CleanerCore::CleanupAuditStore& log, const Platform::Environment& environment)
        : m_fileManager(fileManager)
        , m_trash(trash)
        , m_log(log)
        , m_environment(environment)
    {
    }

    [[nodiscard]] ExitCode run(const CleanOptions& options) const;

private:
    const Platform::FileManager& m_fileManager;
    Platform::Trash& m_trash;
    const CleanerCore::CleanupAuditStore& m_log;
    const Platform::Environment& m_environment;
};

/// What the shell is told of a clean that was carried out.
[[nodiscard]] ExitCode exitCodeOf(const CleanerCore::CleanResult& result);

} // namespace KarvelloCLI
