#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Audit/CleanupAuditStore.h"
#include "CleanerCore/Cleaning/ItemProgress.h"
#include "KarvelloCLI/ExitCode.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/OutputFile.h"
#include "KarvelloCLI/TextStyle.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>

namespace KarvelloCLI {

/// How many entries a folder may hold to be looked through once more before it moves.
inline constexpr std::int64_t kMostValidatedDescendants = 100'000;

enum class ErrandKind : std::uint8_t { clean, restore };

/// Something that moves items of the user, and so wants consent, a truthful account and an entry in the log.
class Errand {
public:
    virtual ~Errand() = default;

    [[nodiscard]] virtual ErrandKind kind() const = 0;
    [[nodiscard]] virtual std::string preview(const TextStyle& style) const = 0;
    [[nodiscard]] virtual std::string question(const TextStyle& style) const = 0;
    /// Does it, once, and gives its entry for the log.
    [[nodiscard]] virtual CleanerCore::CleanupAuditEntry perform(
        const std::stop_token& stop, const CleanerCore::ItemProgressReport& report) = 0;
    /// The rest is of what was performed.
    [[nodiscard]] virtual std::string account(const TextStyle& style) const = 0;
    [[nodiscard]] virtual ExitCode exitCode() const = 0;

protected:
    Errand() = default;
    Errand(const Errand&) = default;
    Errand& operator=(const Errand&) = default;
};

struct ErrandSetting {
    const CommonOptions& common;
    bool isConfirmed;
    const Platform::FileURL& home;
    const OutputFile& output;
    const Platform::FileManager& fileManager;
    const CleanerCore::CleanupAuditStore& log;
    const Platform::Environment& environment;
};

/// False, after a message, where nobody has agreed and nobody can be asked.
[[nodiscard]] bool mayBeAgreedTo(bool isConfirmed, ErrandKind kind);

/// Shows, asks, performs, logs and tells. From the consent to the entry in the log a signal stops the work but not the
/// program; `interruption` ends before a slow reader is waited for.
[[nodiscard]] ExitCode runErrand(
    Errand& errand, const ErrandSetting& setting, std::optional<Interruption>& interruption);

} // namespace KarvelloCLI
