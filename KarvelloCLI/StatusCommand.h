#pragma once

#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/OutputFile.h"
#include "KarvelloCLI/StatusTexts.h"
#include "KarvelloCLI/SystemOptions.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <stop_token>

namespace KarvelloCLI {

/// The command "status": the state of the machine, once or again and again. It watches the processors for a third of a
/// second before the first reading. Handles the signals that `Interruption` names while it works.
class StatusCommand {
public:
    /// Both must outlive the command.
    StatusCommand(const Platform::FileManager& fileManager, const Platform::Environment& environment)
        : m_fileManager(fileManager)
        , m_environment(environment)
    {
    }

    [[nodiscard]] ExitCode run(const StatusOptions& options) const;

private:
    [[nodiscard]] ExitCode watch(
        const StatusOptions& options, double seconds, const OutputFile& output, const std::stop_token& stop) const;

    const Platform::FileManager& m_fileManager;
    const Platform::Environment& m_environment;
};

} // namespace KarvelloCLI
