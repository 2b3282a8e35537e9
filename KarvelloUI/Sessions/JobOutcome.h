#pragma once

#include <exception>
#include <expected>
#include <string>
#include <type_traits>

namespace KarvelloUI {

/// Work ended by an exception. Ours never does; memory may run out.
struct JobFailure {
    std::string reason;

    friend bool operator==(const JobFailure&, const JobFailure&) = default;
};

template <typename Result>
using JobOutcome = std::expected<Result, JobFailure>;

/// What `work` returns, or why it did not.
template <typename Work, typename... Arguments>
[[nodiscard]] auto outcomeOf(Work& work, const Arguments&... arguments)
    -> JobOutcome<std::invoke_result_t<Work&, const Arguments&...>>
{
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Work&, const Arguments&...>>) {
            work(arguments...);
            return {};
        } else {
            return work(arguments...);
        }
    } catch (const std::exception& error) {
        return std::unexpected(JobFailure{error.what()});
    } catch (...) {
        return std::unexpected(JobFailure{"unknown exception"});
    }
}

} // namespace KarvelloUI
