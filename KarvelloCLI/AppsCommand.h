#pragma once

#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/SystemOptions.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"
#include "Platform/Services/RunningApplications.h"

namespace KarvelloCLI {

/// The command "apps": who runs, what it takes, and whether it could be asked to quit. It asks nobody. Handles the
/// signals that `Interruption` names while it works.
class AppsCommand {
public:
    /// All must outlive the command.
    AppsCommand(const Platform::FileManager& fileManager, const Platform::RunningApplications& applications,
        const Platform::Environment& environment)
        : m_fileManager(fileManager)
        , m_applications(applications)
        , m_environment(environment)
    {
    }

    [[nodiscard]] ExitCode run(const AppsOptions& options) const;

private:
    const Platform::FileManager& m_fileManager;
    const Platform::RunningApplications& m_applications;
    const Platform::Environment& m_environment;
};

} // namespace KarvelloCLI
