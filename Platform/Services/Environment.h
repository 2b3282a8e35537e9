#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

/// The variables of a process's environment, as a value: rules that depend on them are given one and stay testable.
class Environment {
public:
    Environment() = default;
    explicit Environment(std::map<std::string, std::string, std::less<>> variables);
    /// A copy of this process's variables.
    static Environment current();

    /// Nothing for a variable that is unset or empty.
    [[nodiscard]] std::optional<std::string> value(std::string_view name) const;
    /// True for one that is set to nothing, too.
    [[nodiscard]] bool holds(std::string_view name) const { return m_variables.contains(name); }

private:
    std::map<std::string, std::string, std::less<>> m_variables;
};

} // namespace Platform
