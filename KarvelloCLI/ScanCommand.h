#pragma once

#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/Options.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

namespace KarvelloCLI {

/// The command "scan": looks, shows, changes nothing. Data goes to standard output or the named file, everything else
/// to standard error. Handles the signals that `Interruption` names while it works.
class ScanCommand {
public:
    /// Both must outlive the command.
    ScanCommand(const Platform::FileManager& fileManager, const Platform::Environment& environment);

    [[nodiscard]] ExitCode run(const ScanOptions& options) const;

private:
    const Platform::FileManager& m_fileManager;
    const Platform::Environment& m_environment;
};

} // namespace KarvelloCLI
