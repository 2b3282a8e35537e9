#pragma once

#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/InsightsOptions.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

namespace KarvelloCLI {

/// The command "insights": shows where the space went, changes nothing. Data goes to standard output or the named file,
/// everything else to standard error. Handles the signals that `Interruption` names while it works.
class InsightsCommand {
public:
    /// Both must outlive the command.
    InsightsCommand(const Platform::FileManager& fileManager, const Platform::Environment& environment);

    [[nodiscard]] ExitCode run(const InsightsOptions& options) const;

private:
    const Platform::FileManager& m_fileManager;
    const Platform::Environment& m_environment;
};

} // namespace KarvelloCLI
