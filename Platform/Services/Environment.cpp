#include "Platform/Services/Environment.h"

#include <unistd.h>

namespace Platform {

Environment::Environment(std::map<std::string, std::string, std::less<>> variables)
    : m_variables(std::move(variables))
{
}

Environment Environment::current()
{
    Environment environment;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string_view text(*entry);
        if (const auto equals = text.find('='); equals != std::string_view::npos) {
            environment.m_variables.emplace(text.substr(0, equals), text.substr(equals + 1));
        }
    }
    return environment;
}

std::optional<std::string> Environment::value(std::string_view name) const
{
    const auto found = m_variables.find(name);
    return found == m_variables.end() || found->second.empty() ? std::nullopt : std::optional(found->second);
}

} // namespace Platform
