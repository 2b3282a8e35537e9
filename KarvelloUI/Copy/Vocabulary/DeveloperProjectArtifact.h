#pragma once

#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace KarvelloUI {

/// The folders of a project that its tools can make again.
enum class DeveloperProjectArtifact : std::uint8_t {
    dependencyFolder,
    swiftBuildFolder,
    toolMetadataFolder,
    podsFolder,
    webFrameworkFolder,
    turboFolder,
    genericBuildFolder,
    genericDistributionFolder,
    genericTargetFolder,
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::DeveloperProjectArtifact> {
    static constexpr std::array<std::string_view, 9> names{"dependencyFolder", "swiftBuildFolder", "toolMetadataFolder",
        "podsFolder", "webFrameworkFolder", "turboFolder", "genericBuildFolder", "genericDistributionFolder",
        "genericTargetFolder"};
};
