#include "CleanerCore/Relief/ResourceReliefCandidate.h"

#include "CleanerCore/Relief/ResourceReliefPolicy.h"
#include "Platform/Base/Text.h"

#include <fmt/format.h>

namespace CleanerCore {

ResourceReliefCandidateID::ResourceReliefCandidateID(
    std::int32_t processIdentifier, const std::optional<std::string>& bundleIdentifier)
{
    auto scalars = Platform::Text::scalars(ResourceReliefPolicy::normalized(bundleIdentifier));
    std::erase_if(scalars, [](char32_t scalar) {
        return !Platform::Text::isAlphanumeric(scalar) && scalar != '.' && scalar != '-' && scalar != '_';
    });
    rawValue = fmt::format("{}:{}", scalars.empty() ? "pid" : Platform::Text::fromScalars(scalars), processIdentifier);
}

} // namespace CleanerCore
