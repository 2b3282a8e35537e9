#pragma once

#include "Platform/Files/FileError.h"
#include "Platform/Services/Environment.h"

#include <optional>
#include <string>
#include <variant>

namespace KarvelloUI {

/// Whether a folder may be read only after access to it was opened: what the caller knows, else whether the environment
/// is that of a sandbox. A process outside of one reads what its user may read.
[[nodiscard]] bool requiresSecurityScopedAccess(std::optional<bool> known, const Platform::Environment& environment);

/// Why a folder that the user picked is not taken, or is none any more: a rule of ours, or the system.
template <typename RuleError>
using FolderAccessError = std::variant<RuleError, Platform::FileError>;

template <typename RuleError>
[[nodiscard]] std::string localizedDescription(const FolderAccessError<RuleError>& error)
{
    const auto* const rule = std::get_if<RuleError>(&error);
    return rule != nullptr ? rule->errorDescription() : std::get<Platform::FileError>(error).localizedDescription();
}

} // namespace KarvelloUI
