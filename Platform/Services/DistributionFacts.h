#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <optional>
#include <string>
#include <string_view>

namespace Platform {

/// What a build says of itself: how it is distributed, and whether it runs in a sandbox. It stands in a small file that is
/// installed with the program. Nothing stands for what is not told, or not in the form that it has to have.
struct DistributionFacts {
    static constexpr std::string_view kChannelKey = "KarvelloDistributionChannel";
    static constexpr std::string_view kSandboxKey = "com.apple.security.app-sandbox";

    std::optional<std::string> channel = {};
    std::optional<bool> isSandboxed = {};

    /// A JSON object with both keys. A file that cannot be read whole tells nothing, and so does one that is no JSON.
    static DistributionFacts read(const FileManager& files, const FileURL& file);
    /// Those of the running program.
    static DistributionFacts current(const FileManager& files);
    /// Where they are for a program: `../share/karvello/distribution.json` beside the folder that it is in.
    [[nodiscard]] static FileURL fileFor(const FileURL& program);

    friend bool operator==(const DistributionFacts&, const DistributionFacts&) = default;
};

} // namespace Platform
