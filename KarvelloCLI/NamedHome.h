#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <optional>
#include <string>

namespace KarvelloCLI {

/// The home that a command line means: the one that it names, or the user's own.
struct NamedHome {
    /// `workingDirectory` is what a relative name counts from.
    static NamedHome of(const std::optional<std::string>& name, const Platform::FileURL& workingDirectory,
        const Platform::FileURL& ownHome, const Platform::FileManager& fileManager);

    /// What the variables say of this home: they speak of the user's own and of no other.
    [[nodiscard]] Platform::Environment environment(const Platform::Environment& ofThisProcess) const;
    /// A sentence for a user whose home is no folder.
    [[nodiscard]] std::string absence() const;

    /// By the name that the user has for it.
    Platform::FileURL named;
    /// A home that is reached through a link is still the home: what lies in it is judged by its real path.
    Platform::FileURL real;
    bool isOwn = false;
};

} // namespace KarvelloCLI
